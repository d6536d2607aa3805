<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>notch</name>
    <message>
        <source>Unpin</source>
        <extracomment>Let the notch close by itself again; the opposite of “Keep open”.</extracomment>
        <translation>取消固定</translation>
    </message>
    <message>
        <source>Keep open</source>
        <translation>保持打开</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Good night</source>
        <translation>夜深了</translation>
    </message>
    <message>
        <source>Good morning</source>
        <translation>早上好</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>下午好</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>晚上好</translation>
    </message>
    <message>
        <source>Choose what Home shows in Settings › Home screen.</source>
        <translation>在“设置 › 主页”中选择此处显示的内容。</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>A note to oneself, such as one jots down.</extracomment>
        <translation>便笺</translation>
    </message>
    <message>
        <source>Quick note… it saves as you type.</source>
        <translation>随手记… 输入时自动保存。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Timer</source>
        <translation>计时器</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>Start the timer.</extracomment>
        <translation>开始</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>Set the timer back to its beginning.</extracomment>
        <translation>重置</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>A button of the script: “Edit” begins to change it, “Done” ends that.
----------
The time of the timer is over.</extracomment>
        <translation>完成</translation>
    </message>
    <message numerus="yes">
        <source>%Ln min</source>
        <extracomment>A button that starts a timer; “min” is short for minutes. There is little room.</extracomment>
        <translation>
            <numerusform>%Ln 分钟</numerusform>
        </translation>
    </message>
    <message>
        <source>The time stays visible beside the closed notch.</source>
        <translation>刘海收起后，时间仍显示在旁边。</translation>
    </message>
    <message>
        <source>Fennivar’s notch is on, so Kestrune is paused.</source>
        <translation>Fennivar 的刘海已开启，因此 Kestrune 已暂停。</translation>
    </message>
    <message>
        <source>Turn off Notch in Fennivar to use Kestrune.</source>
        <translation>要使用 Kestrune，请在 Fennivar 中关闭刘海。</translation>
    </message>
    <message>
        <source>Home</source>
        <extracomment>The page that the notch opens with, like that of a telephone.</extracomment>
        <translation>主页</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>正在播放</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>剪贴板</translation>
    </message>
    <message>
        <source>Screenshots</source>
        <translation>截图</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>日历</translation>
    </message>
    <message>
        <source>Shelf</source>
        <extracomment>A place where files are put down for a while.</extracomment>
        <translation>中转站</translation>
    </message>
    <message>
        <source>AI Usage</source>
        <translation>AI 用量</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>天气</translation>
    </message>
    <message>
        <source>Stocks</source>
        <extracomment>The prices of shares.</extracomment>
        <translation>股票</translation>
    </message>
    <message>
        <source>Teleprompter</source>
        <translation>提词器</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>镜子</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>Processor, memory, disk and battery of this computer.</extracomment>
        <translation>系统</translation>
    </message>
    <message>
        <source>Greeting and date</source>
        <translation>问候语和日期</translation>
    </message>
    <message>
        <source>Today&apos;s events</source>
        <translation>今日日程</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>提醒事项</translation>
    </message>
    <message>
        <source>Latest copies</source>
        <translation>最近复制</translation>
    </message>
    <message>
        <source>Latest screenshots</source>
        <translation>最近截图</translation>
    </message>
    <message>
        <source>Hidden</source>
        <extracomment>Where a block of Home stands: nowhere. The others are its three columns.</extracomment>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左侧</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>中间</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右侧</translation>
    </message>
    <message>
        <source>On hover</source>
        <extracomment>Completes “Open the notch”: when the pointer rests on it.</extracomment>
        <translation>悬停时</translation>
    </message>
    <message>
        <source>On click</source>
        <translation>点击时</translation>
    </message>
    <message>
        <source>More tools at fennivar.example</source>
        <translation>更多工具 fennivar.example</translation>
    </message>
    <message>
        <source>this app</source>
        <extracomment>Stands for the name of the program where it has none.</extracomment>
        <translation>此应用</translation>
    </message>
    <message>
        <source>Copy something and it appears here.
Passwords from password managers are never saved.</source>
        <translation>复制内容后会显示在这里。
绝不保存来自密码管理器的密码。</translation>
    </message>
    <message>
        <source>Clipboard history is off.
Turn it on in Settings.</source>
        <translation>剪贴板历史记录已关闭。
请在设置中开启。</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>清除历史记录</translation>
    </message>
    <message>
        <source>Nothing matches.</source>
        <translation>无匹配结果。</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>In the menu of an entry: delete it from the history.</extracomment>
        <translation>删除</translation>
    </message>
    <message>
        <source>Copied</source>
        <extracomment>Shown in the place of what was just copied again.</extracomment>
        <translation>已复制</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>What an empty search field says, and the button that looks for a city.</extracomment>
        <translation>搜索</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>What the list shows: copies of every kind.</extracomment>
        <translation>全部</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>What the list shows: the copies that are texts.</extracomment>
        <translation>文本</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>PDFs</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>The title of a copied picture, before its size.</extracomment>
        <translation>图片</translation>
    </message>
    <message>
        <source>Connect Codex or Claude Code to see your limits.</source>
        <translation>连接 Codex 或 Claude Code 以查看你的限额。</translation>
    </message>
    <message>
        <source>Reads the plan limits that Codex CLI saves in ~/.codex on this Mac.</source>
        <translation>读取 Codex CLI 保存在此电脑上 ~/.codex 中的套餐限额。</translation>
    </message>
    <message>
        <source>Adds up the tokens that Claude Code logs in ~/.claude on this Mac. Anthropic does not store your remaining limit locally.</source>
        <translation>汇总 Claude Code 记录在此电脑上 ~/.claude 中的 token。Anthropic 不会在本地存储你的剩余限额。</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>最近 7 天</translation>
    </message>
    <message>
        <source>Nothing leaves your Mac.</source>
        <translation>任何内容都不会离开你的电脑。</translation>
    </message>
    <message>
        <source>Read again</source>
        <extracomment>On a round button: read the logs once more.</extracomment>
        <translation>重新读取</translation>
    </message>
    <message>
        <source>Connect</source>
        <extracomment>A button: begin to read the usage of a program.</extracomment>
        <translation>连接</translation>
    </message>
    <message numerus="yes">
        <source>%1 tokens</source>
        <extracomment>%1 is the number of tokens, the pieces of text that a language model counts in.</extracomment>
        <translation>
            <numerusform>%1 token</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln% left</source>
        <extracomment>What is left of a limit, in per cent.</extracomment>
        <translation>
            <numerusform>剩余 %Ln%</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>正在读取…</translation>
    </message>
    <message>
        <source>No Codex activity found yet. Use Codex once and it appears here.</source>
        <translation>尚未找到 Codex 活动。使用一次 Codex 后会显示在这里。</translation>
    </message>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is a time, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>更新于 %1</translation>
    </message>
    <message>
        <source>5-hour window</source>
        <extracomment>The name of a limit that holds for five hours.</extracomment>
        <translation>5 小时窗口</translation>
    </message>
    <message>
        <source>Weekly</source>
        <extracomment>The name of a limit that holds for a week.</extracomment>
        <translation>每周</translation>
    </message>
    <message>
        <source>No Claude Code activity found.</source>
        <translation>未找到 Claude Code 活动。</translation>
    </message>
    <message>
        <source>%1% of your budget</source>
        <extracomment>%1 is a number. There is little room.</extracomment>
        <translation>预算的 %1%</translation>
    </message>
    <message>
        <source>%1% of your busiest block this week</source>
        <extracomment>%1 is a number; a block is five hours of work. There is little room.</extracomment>
        <translation>本周最忙时段的 %1%</translation>
    </message>
    <message>
        <source>This 5-hour block</source>
        <translation>当前 5 小时时段</translation>
    </message>
    <message>
        <source>Resets: %1</source>
        <extracomment>When a limit begins anew; %1 is a time, such as “14:05” or “Mon 14:05”. There is little room.</extracomment>
        <translation>重置：%1</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>%1 is a number, with decimals where it is the change of a share’s price.</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Drop files here to keep them handy.
Drag them out anywhere, or AirDrop them.</source>
        <translation>将文件拖到这里，方便随时取用。
可将其拖到任意位置，或发送到设备。</translation>
    </message>
    <message>
        <source>Allow %1 to read your screenshots folder in
System Settings › Privacy &amp; Security › Files and Folders.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>请允许 %1 读取截图文件夹：
文件夹的权限不允许。</translation>
    </message>
    <message>
        <source>Take a screenshot (⇧⌘4) and it appears here.
Drag it into any app, or right-click for more.</source>
        <translation>截图（Print Screen）后会显示在这里。
可拖入任意应用，或右键点击查看更多操作。</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>A button that opens the settings of the desktop.</extracomment>
        <translation>打开设置</translation>
    </message>
    <message>
        <source>Click to open · drag into any app · right-click to copy, AirDrop or add to the Shelf.</source>
        <translation>点击打开 · 拖入任意应用 · 右键：复制、发送或中转站</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>在文件管理器中显示</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>发送到设备</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>A button: take all files off the shelf.</extracomment>
        <translation>清空</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Take a file off the shelf; the file itself stays where it is.</extracomment>
        <translation>移除</translation>
    </message>
    <message>
        <source>Paste your script here. It scrolls right under the camera so you keep eye contact.</source>
        <translation>在此粘贴讲稿。文字在摄像头正下方滚动，让你保持眼神交流。</translation>
    </message>
    <message>
        <source>Script</source>
        <extracomment>Name of the field for the text that is read aloud.</extracomment>
        <translation>讲稿</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>A button: scroll the script from its beginning again.</extracomment>
        <translation>从头开始</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>How fast the script scrolls.</extracomment>
        <translation>速度</translation>
    </message>
    <message>
        <source>Text %1</source>
        <extracomment>%1 is the size of the letters in points. There is little room.</extracomment>
        <translation>字号 %1</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>缩小文字</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>放大文字</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Add to Shelf</source>
        <translation>添加到中转站</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>In the menu of a screenshot: copy the picture.</extracomment>
        <translation>复制</translation>
    </message>
    <message>
        <source>Type the symbols that you want to follow.</source>
        <translation>输入你想关注的股票代码。</translation>
    </message>
    <message>
        <source>Symbols, separated by commas (AAPL, TSLA, ^GSPC, BTC-USD)</source>
        <translation>股票代码，以逗号分隔（AAPL, TSLA, ^GSPC, BTC-USD）</translation>
    </message>
    <message>
        <source>Delayed quotes from Yahoo Finance.</source>
        <translation>行情由 Yahoo Finance 提供，有延迟。</translation>
    </message>
    <message>
        <source>Edit symbols</source>
        <translation>编辑股票代码</translation>
    </message>
    <message>
        <source>Choose a city to see its weather.</source>
        <translation>选择城市以查看天气。</translation>
    </message>
    <message>
        <source>City</source>
        <extracomment>What the empty field for the name of a city says.</extracomment>
        <translation>城市</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>使用我的位置</translation>
    </message>
    <message>
        <source>Change city</source>
        <translation>更改城市</translation>
    </message>
    <message>
        <source>Forecast by Open-Meteo. Only the city&apos;s coordinates are sent.</source>
        <translation>预报由 Open-Meteo 提供。仅发送城市坐标。</translation>
    </message>
    <message>
        <source>Weather is not available right now.</source>
        <translation>天气暂时不可用。</translation>
    </message>
    <message>
        <source>City not found.</source>
        <translation>未找到该城市。</translation>
    </message>
    <message>
        <source>My location</source>
        <extracomment>In the place of a city’s name.</extracomment>
        <translation>我的位置</translation>
    </message>
    <message>
        <source>Location not available. Type a city instead.</source>
        <translation>无法获取位置。请改为输入城市。</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <extracomment>%1 is a list of the symbols of shares.</extracomment>
        <translation>未找到：%1</translation>
    </message>
    <message>
        <source>Wind %1 mph</source>
        <extracomment>%1 is a speed in miles an hour.</extracomment>
        <translation>风速 %1 mph</translation>
    </message>
    <message>
        <source>Wind %1 km/h</source>
        <extracomment>%1 is a speed in kilometres an hour.</extracomment>
        <translation>风速 %1 km/h</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Allow %1 to control Music or Spotify in
System Settings › Privacy &amp; Security › Automation.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>请允许 %1 控制媒体播放器：
桌面的隐私设置。</translation>
    </message>
    <message>
        <source>Play something in Music or Spotify
and it shows up here.</source>
        <translation>在任意媒体播放器中播放内容，
即会显示在这里。</translation>
    </message>
    <message>
        <source>Previous</source>
        <extracomment>The previous song.</extracomment>
        <translation>上一首</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>The next song.</extracomment>
        <translation>下一首</translation>
    </message>
    <message>
        <source>charging</source>
        <extracomment>Of the battery, after its level: “80% · charging”.</extracomment>
        <translation>充电中</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>电池</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>The processor and how busy it is. There is little room.</extracomment>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>The working memory (RAM).</extracomment>
        <translation>内存</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>磁盘</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is an amount with its unit, such as 12.3 GB.</extracomment>
        <translation>%1 可用</translation>
    </message>
    <message>
        <source>No camera found.</source>
        <translation>未找到摄像头。</translation>
    </message>
    <message>
        <source>Allow %1 to use the camera in
System Settings › Privacy &amp; Security › Camera.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>请允许 %1 使用摄像头：
桌面的隐私设置。</translation>
    </message>
    <message>
        <source>Events</source>
        <extracomment>Heading of the list of appointments.</extracomment>
        <translation>日程</translation>
    </message>
    <message>
        <source>Allow Calendar</source>
        <translation>允许访问日历</translation>
    </message>
    <message>
        <source>Nothing else today or tomorrow.</source>
        <translation>今明两天没有其他日程。</translation>
    </message>
    <message>
        <source>Allow Reminders</source>
        <translation>允许访问提醒事项</translation>
    </message>
    <message>
        <source>All done</source>
        <extracomment>Instead of a list: no reminder is left.</extracomment>
        <translation>全部完成</translation>
    </message>
    <message>
        <source>Nothing else today.</source>
        <translation>今天没有其他日程。</translation>
    </message>
    <message>
        <source>Complete</source>
        <extracomment>A verb, on the circle before a reminder: mark it as done.</extracomment>
        <translation>标为完成</translation>
    </message>
    <message>
        <source>Event</source>
        <extracomment>The title of an appointment that has none.</extracomment>
        <translation>日程</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>明天</translation>
    </message>
    <message>
        <source>All day</source>
        <extracomment>In the place of an appointment’s time.</extracomment>
        <translation>全天</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Want more? Meet Fennivar</source>
        <translation>想要更多？认识 Fennivar</translation>
    </message>
    <message>
        <source>Kestrune is one piece of Fennivar, the all-in-one app that makes your Mac work the way it should.</source>
        <translation>Kestrune 是 Fennivar 的一部分，这款全能应用让你的电脑 按应有的方式运作。</translation>
    </message>
    <message>
        <source>Snap windows into place with a key or a drag</source>
        <translation>用按键或拖移让窗口就位</translation>
    </message>
    <message>
        <source>Find files, apps and settings from one field</source>
        <translation>在一个输入框中查找文件、应用和设置</translation>
    </message>
    <message>
        <source>See what fills your disk and free it up</source>
        <translation>查看磁盘占用并释放空间</translation>
    </message>
    <message>
        <source>Keep an eye on the battery and make it last</source>
        <translation>关注电池状况，延长续航</translation>
    </message>
    <message>
        <source>Discover Fennivar ↗</source>
        <translation>了解 Fennivar ↗</translation>
    </message>
    <message>
        <source>Opening</source>
        <extracomment>Heading of the settings that say how the notch opens.</extracomment>
        <translation>打开</translation>
    </message>
    <message>
        <source>Open the notch</source>
        <extracomment>Followed by the choice of “On hover” and “On click”.</extracomment>
        <translation>打开刘海</translation>
    </message>
    <message>
        <source>Hover delay</source>
        <extracomment>How long the pointer rests on the notch before it opens; beside a slider.</extracomment>
        <translation>悬停延迟</translation>
    </message>
    <message>
        <source>Open and close with ⌃⌥⌘N</source>
        <translation>使用 Ctrl+Alt+Super+N 打开和关闭</translation>
    </message>
    <message>
        <source>Show the song or timer beside the closed notch</source>
        <translation>在收起的刘海旁显示歌曲或计时器</translation>
    </message>
    <message>
        <source>Show new screenshots beside the notch</source>
        <translation>在刘海旁显示新截图</translation>
    </message>
    <message>
        <source>Displays</source>
        <extracomment>Heading of the settings that are about monitors.</extracomment>
        <translation>显示器</translation>
    </message>
    <message>
        <source>Show on every display</source>
        <translation>在每台显示器上显示</translation>
    </message>
    <message>
        <source>Draw a notch on displays without one</source>
        <translation>在没有刘海的显示器上绘制刘海</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>隐私</translation>
    </message>
    <message>
        <source>Everything stays on this Mac. Weather asks Open-Meteo for your city&apos;s forecast and Stocks asks Yahoo Finance for quotes; nothing else goes online.</source>
        <translation>所有内容都留在此电脑上。“天气”向 Open-Meteo 查询你所在城市的预报，“股票”向 Yahoo Finance 查询行情；除此之外不会联网。</translation>
    </message>
    <message>
        <source>Keep a clipboard history</source>
        <translation>保留剪贴板历史记录</translation>
    </message>
    <message>
        <source>Read Codex usage (~/.codex)</source>
        <translation>读取 Codex 用量（~/.codex）</translation>
    </message>
    <message>
        <source>Read Claude Code usage (~/.claude)</source>
        <translation>读取 Claude Code 用量（~/.claude）</translation>
    </message>
    <message>
        <source>Temperatures in °F</source>
        <translation>温度以 °F 显示</translation>
    </message>
    <message>
        <source>Home screen</source>
        <translation>主页</translation>
    </message>
    <message>
        <source>Restore default layout</source>
        <translation>恢复默认布局</translation>
    </message>
    <message>
        <source>Leave it at 0 to compare with your busiest block of the week. Anthropic does not publish limits in tokens, so set your own if you know it.</source>
        <translation>保留为 0 则与本周最忙的时段比较。Anthropic 未公布以 token 计的限额，如果你知道自己的限额，请自行填写。</translation>
    </message>
    <message>
        <source>Claude 5-hour budget (tokens)</source>
        <translation>Claude 5 小时预算（token）</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Kestrune Settings</source>
        <translation>Kestrune 设置</translation>
    </message>
    <message>
        <source>This copy gets its updates with its package, or from whoever built it.</source>
        <translation>此副本随其软件包更新，或由构建者更新。</translation>
    </message>
    <message>
        <source>Open Kestrune at login</source>
        <translation>登录时打开 Kestrune</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>自动安装更新</translation>
    </message>
    <message>
        <source>Open Notch</source>
        <translation>打开刘海</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>Get more tools: Fennivar ↗</source>
        <translation>更多工具：Fennivar ↗</translation>
    </message>
    <message>
        <source>Quit Kestrune</source>
        <translation>退出 Kestrune</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>%1 is a number of milliseconds.</extracomment>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Kestrune then looks once a day, downloads what is new and asks before it is installed.</source>
        <translation>开启后，Kestrune 每天检查一次，下载新版本，并在安装前询问你。</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>软件更新</translation>
    </message>
    <message>
        <source>The list of releases is not signed by Kestrune’s makers, so it was ignored.</source>
        <translation>版本列表没有 Kestrune 开发者的签名，已忽略。</translation>
    </message>
    <message>
        <source>The list of releases could not be read. Are you online?</source>
        <translation>无法读取版本列表。是否已联网？</translation>
    </message>
    <message>
        <source>The list of releases is older than one seen before, so it was ignored.</source>
        <translation>版本列表比之前的更旧，已忽略。</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Are you online?</source>
        <translation>无法下载更新。是否已联网？</translation>
    </message>
    <message>
        <source>The update is not what Kestrune’s makers signed, so it was not kept.</source>
        <translation>更新与 Kestrune 开发者签名的内容不符，未予保留。</translation>
    </message>
    <message>
        <source>The update could not be saved. Is the disk full?</source>
        <translation>无法存储更新。磁盘是否已满？</translation>
    </message>
    <message>
        <source>The downloaded update was changed or removed.</source>
        <translation>下载的更新已被更改或移除。</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>正在检查更新…</translation>
    </message>
    <message>
        <source>Kestrune is up to date</source>
        <translation>Kestrune 已是最新版本</translation>
    </message>
    <message>
        <source>Kestrune %1 is available</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Kestrune %1 可供下载</translation>
    </message>
    <message>
        <source>Downloading Kestrune %1…</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>正在下载 Kestrune %1…</translation>
    </message>
    <message>
        <source>Kestrune %1 is ready to install</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Kestrune %1 可以安装了</translation>
    </message>
    <message>
        <source>Kestrune could not be updated</source>
        <translation>无法更新 Kestrune</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>版本 %1 是最新版本。</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>你的版本是 %1。</translation>
    </message>
    <message>
        <source>It was checked: it comes from Kestrune’s makers.</source>
        <translation>已验证：来自 Kestrune 的开发者。</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>A verb, on a button.</extracomment>
        <translation>下载</translation>
    </message>
    <message>
        <source>Install…</source>
        <translation>安装…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>A button that closes the window of an update.</extracomment>
        <translation>稍后</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Bound to %1</source>
        <extracomment>%1 is a combination of keys, as the desktop writes it.</extracomment>
        <translation>已绑定：%1</translation>
    </message>
    <message>
        <source>Another program has these keys. In the desktop’s settings, bind others to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>其他程序占用了这些按键。请在桌面设置中将其他按键绑定到命令：%1</translation>
    </message>
    <message>
        <source>No keys are bound. In the desktop’s settings, bind some to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>未绑定按键。请在桌面设置中将按键绑定到命令：%1</translation>
    </message>
    <message>
        <source>The list of releases has expired, so it was ignored. Is the clock set right?</source>
        <translation>版本列表已过期，已忽略。时钟准确吗？</translation>
    </message>
    <message>
        <source>The list of releases is dated in the future, so it was ignored. Is the clock set right?</source>
        <translation>版本列表的日期在未来，已忽略。时钟准确吗？</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>The name of a calendar in quotation marks.</extracomment>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>Could not be read in full: %1</source>
        <extracomment>%1 is the name of a calendar in quotation marks, or several with commas between them.</extracomment>
        <translation>无法完整读取：%1</translation>
    </message>
    <message>
        <source>Renewed; figures of %1</source>
        <extracomment>A limit has begun anew since it was read; %1 is when that was, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>已重置（数据截至 %1）</translation>
    </message>
    <message>
        <source>All day, since %1</source>
        <extracomment>In the place of an appointment’s time; %1 is the day before today when it began, such as “Mon”.</extracomment>
        <translation>全天，自 %1 起</translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>When an appointment began; %1 is a day before today and a time, such as “Mon 14:05”.</extracomment>
        <translation>自 %1 起</translation>
    </message>
    <message>
        <source>Hide over full-screen windows</source>
        <extracomment>The closed notch; displays with a camera housing keep theirs.</extracomment>
        <translation>在全屏窗口上方隐藏</translation>
    </message>
    <message>
        <source>Panels at the top edge</source>
        <extracomment>Other programs&apos; bars along the top of the screen; followed by a choice of where the notch is.</extracomment>
        <translation>顶部边缘的面板</translation>
    </message>
    <message>
        <source>Automatic</source>
        <extracomment>Completes “Panels at the top edge”: below them, but around a camera.</extracomment>
        <translation>自动</translation>
    </message>
    <message>
        <source>Notch over them</source>
        <extracomment>Completes “Panels at the top edge”: the notch lies over them.</extracomment>
        <translation>刘海盖在上面</translation>
    </message>
    <message>
        <source>Notch below them</source>
        <extracomment>Completes “Panels at the top edge”: the notch hangs below them.</extracomment>
        <translation>刘海在其下方</translation>
    </message>
    <message>
        <source>Press the keys…</source>
        <translation>请按下按键…</translation>
    </message>
    <message>
        <source>Keys that open and close the notch: %1</source>
        <translation>打开和关闭刘海的按键：%1</translation>
    </message>
    <message>
        <source>Keys</source>
        <extracomment>Beside a button that shows the keys of the hot key.</extracomment>
        <translation>按键</translation>
    </message>
    <message>
        <source>Open and close with %1</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>使用 %1 打开和关闭</translation>
    </message>
    <message>
        <source>Pin</source>
        <extracomment>In the menu of an entry of the clipboard history: keep it until it is deleted.</extracomment>
        <translation>固定</translation>
    </message>
    <message>
        <source>Pinned</source>
        <extracomment>Said of an entry of the clipboard history that is kept until the user deletes it.</extracomment>
        <translation>已固定</translation>
    </message>
    <message>
        <source>Cut</source>
        <extracomment>In the menu of a text field, as “Copy”, “Paste” and “Select All”.</extracomment>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Play and pause the teleprompter with Ctrl+Alt+Super+P</source>
        <translation>使用 Ctrl+Alt+Super+P 播放和暂停提词器</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>移到回收站</translation>
    </message>
    <message>
        <source>Choose the camera</source>
        <translation>选择摄像头</translation>
    </message>
    <message>
        <source>The desktop will ask you for the camera.</source>
        <translation>桌面将询问您是否允许使用摄像头。</translation>
    </message>
    <message>
        <source>Turn On Camera</source>
        <translation>打开摄像头</translation>
    </message>
    <message>
        <source>You refused the camera before, and the desktop remembers it.
Allow it in the desktop’s privacy settings.</source>
        <translation>您之前拒绝了摄像头，桌面记住了这一选择。
请在桌面的隐私设置中允许。</translation>
    </message>
    <message>
        <source>Cannot be reached now</source>
        <translation>目前无法访问</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>How long the rest of the script takes to scroll past. %1 is a time such as 3:05.</extracomment>
        <translation>剩余 %1</translation>
    </message>
    <message>
        <source>Play or pause the teleprompter</source>
        <extracomment>What a hot key does, in the desktop&apos;s settings.</extracomment>
        <translation>播放或暂停提词器</translation>
    </message>
    <message>
        <source>To send files, KDE Connect or GSConnect has to run.</source>
        <translation>要发送文件，需要运行 KDE Connect 或 GSConnect。</translation>
    </message>
    <message>
        <source>Sending to %1…</source>
        <translation>正在发送到 %1…</translation>
    </message>
    <message>
        <source>On the way to %1.</source>
        <extracomment>The files have been handed over to the service that sends them.</extracomment>
        <translation>正在传往 %1。</translation>
    </message>
    <message>
        <source>Could not be sent to %1.</source>
        <translation>无法发送到 %1。</translation>
    </message>
    <message>
        <source>No paired device is in reach.</source>
        <translation>附近没有已配对的设备。</translation>
    </message>
    <message numerus="yes">
        <source>Send %Ln files to %1</source>
        <extracomment>An entry of a menu. %1 is the name of a phone or of another computer.</extracomment>
        <translation>
            <numerusform>将 %Ln 个文件发送到 %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash.</source>
        <translation>无法将 %1 移到回收站。</translation>
    </message>
    <message>
        <source>Default Camera</source>
        <extracomment>The first of the cameras to choose from: whichever the desktop takes.</extracomment>
        <translation>默认摄像头</translation>
    </message>
    <message>
        <source>Minutes</source>
        <extracomment>What the empty field for the length of a timer says.</extracomment>
        <translation>分钟</translation>
    </message>
    <message>
        <source>One minute less</source>
        <translation>减少 1 分钟</translation>
    </message>
    <message>
        <source>One minute more</source>
        <translation>增加 1 分钟</translation>
    </message>
    <message>
        <source>The time is up.</source>
        <extracomment>The timer has run down.</extracomment>
        <translation>时间到了。</translation>
    </message>
    <message>
        <source>As of %1</source>
        <extracomment>Beside figures that could not be fetched anew; %1 is when they came, such as “14:05” or “24.12.26 14:05”.</extracomment>
        <translation>截至 %1</translation>
    </message>
    <message>
        <source>Quotes are not available right now.</source>
        <extracomment>The prices of shares, which a server on the web tells.</extracomment>
        <translation>行情暂时不可用。</translation>
    </message>
</context>
</TS>
