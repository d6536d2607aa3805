<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>notch</name>
    <message>
        <source>Unpin</source>
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
        <translation>开始</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>%d min</source>
        <translation>%d 分钟</translation>
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
        <translation>删除</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>已复制</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Text</source>
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
        <translation>图片</translation>
    </message>
    <message>
        <source>Connect Codex or Claude Code to see your limits.</source>
        <translation>连接 Codex 或 Claude Code 以查看你的限额。</translation>
    </message>
    <message>
        <source>Reads the plan limits that Codex CLI saves in ~/.codex on this Mac.</source>
        <translation>读取 Codex CLI 保存在此 Mac 上 ~/.codex 中的套餐限额。</translation>
    </message>
    <message>
        <source>Adds up the tokens that Claude Code logs in ~/.claude on this Mac. Anthropic does not store your remaining limit locally.</source>
        <translation>汇总 Claude Code 记录在此 Mac 上 ~/.claude 中的 token。Anthropic 不会在本地存储你的剩余限额。</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>最近 7 天</translation>
    </message>
    <message>
        <source>Nothing leaves your Mac.</source>
        <translation>任何内容都不会离开你的 Mac。</translation>
    </message>
    <message>
        <source>Read again</source>
        <translation>重新读取</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>%@ tokens</source>
        <translation>%@ token</translation>
    </message>
    <message>
        <source>%d%% left</source>
        <translation>剩余 %d%%</translation>
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
        <source>Updated %@</source>
        <translation>更新于 %@</translation>
    </message>
    <message>
        <source>5-hour window</source>
        <translation>5 小时窗口</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>每周</translation>
    </message>
    <message>
        <source>No Claude Code activity found.</source>
        <translation>未找到 Claude Code 活动。</translation>
    </message>
    <message>
        <source>%d%% of your budget</source>
        <translation>预算的 %d%%</translation>
    </message>
    <message>
        <source>%d%% of your busiest block this week</source>
        <translation>本周最忙时段的 %d%%</translation>
    </message>
    <message>
        <source>This 5-hour block</source>
        <translation>当前 5 小时时段</translation>
    </message>
    <message>
        <source>Resets: %@</source>
        <translation>重置：%@</translation>
    </message>
    <message>
        <source>%d%%</source>
        <translation>%d%%</translation>
    </message>
    <message>
        <source>Drop files here to keep them handy.
Drag them out anywhere, or AirDrop them.</source>
        <translation>将文件拖到这里，方便随时取用。
可将其拖到任意位置，或用 AirDrop 发送。</translation>
    </message>
    <message>
        <source>Allow %@ to read your screenshots folder in
System Settings › Privacy &amp; Security › Files and Folders.</source>
        <translation>请允许 %@ 读取截图文件夹：
系统设置 › 隐私与安全性 › 文件与文件夹。</translation>
    </message>
    <message>
        <source>Take a screenshot (⇧⌘4) and it appears here.
Drag it into any app, or right-click for more.</source>
        <translation>截图（⇧⌘4）后会显示在这里。
可拖入任意应用，或右键点击查看更多操作。</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>打开设置</translation>
    </message>
    <message>
        <source>Click to open · drag into any app · right-click to copy, AirDrop or add to the Shelf.</source>
        <translation>点击打开 · 拖入任意应用 · 右键：复制、AirDrop 或中转站</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>在文件管理器中显示</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>AirDrop</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Paste your script here. It scrolls right under the camera so you keep eye contact.</source>
        <translation>在此粘贴讲稿。文字在摄像头正下方滚动，让你保持眼神交流。</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>讲稿</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>从头开始</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Text %d</source>
        <translation>字号 %d</translation>
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
        <translation>我的位置</translation>
    </message>
    <message>
        <source>Location not available. Type a city instead.</source>
        <translation>无法获取位置。请改为输入城市。</translation>
    </message>
    <message>
        <source>Not found: %@</source>
        <translation>未找到：%@</translation>
    </message>
    <message>
        <source>Wind %@ mph</source>
        <translation>风速 %@ mph</translation>
    </message>
    <message>
        <source>Wind %@ km/h</source>
        <translation>风速 %@ km/h</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Allow %@ to control Music or Spotify in
System Settings › Privacy &amp; Security › Automation.</source>
        <translation>请允许 %@ 控制 Music 或 Spotify：
系统设置 › 隐私与安全性 › 自动化。</translation>
    </message>
    <message>
        <source>Play something in Music or Spotify
and it shows up here.</source>
        <translation>在 Music 或 Spotify 中播放内容，
即会显示在这里。</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>上一首</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一首</translation>
    </message>
    <message>
        <source>charging</source>
        <translation>充电中</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>电池</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>磁盘</translation>
    </message>
    <message>
        <source>%@ free</source>
        <translation>%@ 可用</translation>
    </message>
    <message>
        <source>No camera found.</source>
        <translation>未找到摄像头。</translation>
    </message>
    <message>
        <source>Allow %@ to use the camera in
System Settings › Privacy &amp; Security › Camera.</source>
        <translation>请允许 %@ 使用摄像头：
系统设置 › 隐私与安全性 › 摄像头。</translation>
    </message>
    <message>
        <source>Events</source>
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
        <translation>全部完成</translation>
    </message>
    <message>
        <source>Nothing else today.</source>
        <translation>今天没有其他日程。</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>标为完成</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>日程</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>明天</translation>
    </message>
    <message>
        <source>All day</source>
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
        <translation>Kestrune 是 Fennivar 的一部分，这款全能应用让你的 Mac 按应有的方式运作。</translation>
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
        <translation>打开</translation>
    </message>
    <message>
        <source>Open the notch</source>
        <translation>打开刘海</translation>
    </message>
    <message>
        <source>Hover delay</source>
        <translation>悬停延迟</translation>
    </message>
    <message>
        <source>Open and close with ⌃⌥⌘N</source>
        <translation>使用 ⌃⌥⌘N 打开和关闭</translation>
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
        <translation>所有内容都留在此 Mac 上。“天气”向 Open-Meteo 查询你所在城市的预报，“股票”向 Yahoo Finance 查询行情；除此之外不会联网。</translation>
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
        <source>Kestrune %@ is available</source>
        <translation>Kestrune %@ 可供下载</translation>
    </message>
    <message>
        <source>Downloading Kestrune %@…</source>
        <translation>正在下载 Kestrune %@…</translation>
    </message>
    <message>
        <source>Kestrune %@ is ready to install</source>
        <translation>Kestrune %@ 可以安装了</translation>
    </message>
    <message>
        <source>Kestrune could not be updated</source>
        <translation>无法更新 Kestrune</translation>
    </message>
    <message>
        <source>Version %@ is the newest one.</source>
        <translation>版本 %@ 是最新版本。</translation>
    </message>
    <message>
        <source>You have version %@.</source>
        <translation>你的版本是 %@。</translation>
    </message>
    <message>
        <source>It was checked: it comes from Kestrune’s makers.</source>
        <translation>已验证：来自 Kestrune 的开发者。</translation>
    </message>
    <message>
        <source>Download</source>
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
        <translation>稍后</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
</TS>
