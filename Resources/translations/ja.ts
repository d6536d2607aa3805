<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>notch</name>
    <message>
        <source>Unpin</source>
        <extracomment>Let the notch close by itself again; the opposite of “Keep open”.</extracomment>
        <translation>固定を解除</translation>
    </message>
    <message>
        <source>Keep open</source>
        <translation>開いたままにする</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Good night</source>
        <translation>おやすみなさい</translation>
    </message>
    <message>
        <source>Good morning</source>
        <translation>おはようございます</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>こんにちは</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>こんばんは</translation>
    </message>
    <message>
        <source>Choose what Home shows in Settings › Home screen.</source>
        <translation>ここに表示する内容は「設定 › ホーム画面」で選べます。</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>A note to oneself, such as one jots down.</extracomment>
        <translation>メモ</translation>
    </message>
    <message>
        <source>Quick note… it saves as you type.</source>
        <translation>クイックメモ… 入力と同時に保存されます。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Timer</source>
        <translation>タイマー</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>Start the timer.</extracomment>
        <translation>開始</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>Set the timer back to its beginning.</extracomment>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>A button of the script: “Edit” begins to change it, “Done” ends that.
----------
The time of the timer is over.</extracomment>
        <translation>完了</translation>
    </message>
    <message numerus="yes">
        <source>%Ln min</source>
        <extracomment>A button that starts a timer; “min” is short for minutes. There is little room.</extracomment>
        <translation>
            <numerusform>%Ln分</numerusform>
        </translation>
    </message>
    <message>
        <source>The time stays visible beside the closed notch.</source>
        <translation>閉じたノッチの横に時間が表示され続けます。</translation>
    </message>
    <message>
        <source>Fennivar’s notch is on, so Kestrune is paused.</source>
        <translation>Fennivarのノッチがオンのため、Kestruneは一時停止しています。</translation>
    </message>
    <message>
        <source>Turn off Notch in Fennivar to use Kestrune.</source>
        <translation>Kestruneを使うには、Fennivarでノッチをオフにしてください。</translation>
    </message>
    <message>
        <source>Home</source>
        <extracomment>The page that the notch opens with, like that of a telephone.</extracomment>
        <translation>ホーム</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>再生中</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>クリップボード</translation>
    </message>
    <message>
        <source>Screenshots</source>
        <translation>スクリーンショット</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>Shelf</source>
        <extracomment>A place where files are put down for a while.</extracomment>
        <translation>シェルフ</translation>
    </message>
    <message>
        <source>AI Usage</source>
        <translation>AI使用量</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>天気</translation>
    </message>
    <message>
        <source>Stocks</source>
        <extracomment>The prices of shares.</extracomment>
        <translation>株価</translation>
    </message>
    <message>
        <source>Teleprompter</source>
        <translation>プロンプター</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>ミラー</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>Processor, memory, disk and battery of this computer.</extracomment>
        <translation>システム</translation>
    </message>
    <message>
        <source>Greeting and date</source>
        <translation>あいさつと日付</translation>
    </message>
    <message>
        <source>Today&apos;s events</source>
        <translation>今日の予定</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>リマインダー</translation>
    </message>
    <message>
        <source>Latest copies</source>
        <translation>最近のコピー</translation>
    </message>
    <message>
        <source>Latest screenshots</source>
        <translation>最新スクリーンショット</translation>
    </message>
    <message>
        <source>Hidden</source>
        <extracomment>Where a block of Home stands: nowhere. The others are its three columns.</extracomment>
        <translation>非表示</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>On hover</source>
        <extracomment>Completes “Open the notch”: when the pointer rests on it.</extracomment>
        <translation>ホバー時</translation>
    </message>
    <message>
        <source>On click</source>
        <translation>クリック時</translation>
    </message>
    <message>
        <source>More tools at fennivar.example</source>
        <translation>他にも：fennivar.example</translation>
    </message>
    <message>
        <source>this app</source>
        <extracomment>Stands for the name of the program where it has none.</extracomment>
        <translation>このアプリ</translation>
    </message>
    <message>
        <source>Copy something and it appears here.
Passwords from password managers are never saved.</source>
        <translation>何かコピーすると、ここに表示されます。
パスワードマネージャーのパスワードは保存されません。</translation>
    </message>
    <message>
        <source>Clipboard history is off.
Turn it on in Settings.</source>
        <translation>クリップボードの履歴はオフです。
設定でオンにしてください。</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>履歴を消去</translation>
    </message>
    <message>
        <source>Nothing matches.</source>
        <translation>見つかりません。</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>In the menu of an entry: delete it from the history.</extracomment>
        <translation>削除</translation>
    </message>
    <message>
        <source>Copied</source>
        <extracomment>Shown in the place of what was just copied again.</extracomment>
        <translation>コピー済み</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>What an empty search field says, and the button that looks for a city.</extracomment>
        <translation>検索</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>What the list shows: copies of every kind.</extracomment>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>What the list shows: the copies that are texts.</extracomment>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>PDFs</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>The title of a copied picture, before its size.</extracomment>
        <translation>画像</translation>
    </message>
    <message>
        <source>Connect Codex or Claude Code to see your limits.</source>
        <translation>CodexかClaude Codeを接続すると、利用枠が表示されます。</translation>
    </message>
    <message>
        <source>Reads the plan limits that Codex CLI saves in ~/.codex on this Mac.</source>
        <translation>Codex CLIがこのコンピュータの~/.codexに保存するプランの利用枠を読み取ります。</translation>
    </message>
    <message>
        <source>Adds up the tokens that Claude Code logs in ~/.claude on this Mac. Anthropic does not store your remaining limit locally.</source>
        <translation>Claude Codeがこのコンピュータの~/.claudeに記録するトークンを合計します。Anthropicは残りの利用枠をローカルに保存しません。</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>過去7日間</translation>
    </message>
    <message>
        <source>Nothing leaves your Mac.</source>
        <translation>このコンピュータの外には何も送信されません。</translation>
    </message>
    <message>
        <source>Read again</source>
        <extracomment>On a round button: read the logs once more.</extracomment>
        <translation>再読み込み</translation>
    </message>
    <message>
        <source>Connect</source>
        <extracomment>A button: begin to read the usage of a program.</extracomment>
        <translation>接続</translation>
    </message>
    <message numerus="yes">
        <source>%1 tokens</source>
        <extracomment>%1 is the number of tokens, the pieces of text that a language model counts in.</extracomment>
        <translation>
            <numerusform>%1トークン</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln% left</source>
        <extracomment>What is left of a limit, in per cent.</extracomment>
        <translation>
            <numerusform>残り%Ln%</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>読み込み中…</translation>
    </message>
    <message>
        <source>No Codex activity found yet. Use Codex once and it appears here.</source>
        <translation>Codexの使用記録がまだありません。Codexを一度使うと、ここに表示されます。</translation>
    </message>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is a time, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>更新：%1</translation>
    </message>
    <message>
        <source>5-hour window</source>
        <extracomment>The name of a limit that holds for five hours.</extracomment>
        <translation>5時間枠</translation>
    </message>
    <message>
        <source>Weekly</source>
        <extracomment>The name of a limit that holds for a week.</extracomment>
        <translation>週間</translation>
    </message>
    <message>
        <source>No Claude Code activity found.</source>
        <translation>Claude Codeの使用記録がありません。</translation>
    </message>
    <message>
        <source>%1% of your budget</source>
        <extracomment>%1 is a number. There is little room.</extracomment>
        <translation>予算の%1%</translation>
    </message>
    <message>
        <source>%1% of your busiest block this week</source>
        <extracomment>%1 is a number; a block is five hours of work. There is little room.</extracomment>
        <translation>今週最多ブロックの%1%</translation>
    </message>
    <message>
        <source>This 5-hour block</source>
        <translation>この5時間ブロック</translation>
    </message>
    <message>
        <source>Resets: %1</source>
        <extracomment>When a limit begins anew; %1 is a time, such as “14:05” or “Mon 14:05”. There is little room.</extracomment>
        <translation>リセット：%1</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>%1 is a number, with decimals where it is the change of a share’s price.</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Drop files here to keep them handy.
Drag them out anywhere, or AirDrop them.</source>
        <translation>ファイルをここにドロップすると、すぐに使えます。
ここからどこへでもドラッグでき、デバイスにも送れます。</translation>
    </message>
    <message>
        <source>Allow %1 to read your screenshots folder in
System Settings › Privacy &amp; Security › Files and Folders.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>%1にスクリーンショットのフォルダの読み取りを許可してください：
フォルダのアクセス権が許していません。</translation>
    </message>
    <message>
        <source>Take a screenshot (⇧⌘4) and it appears here.
Drag it into any app, or right-click for more.</source>
        <translation>スクリーンショットを撮ると（Print Screen）、ここに表示されます。
アプリへドラッグできます。右クリックでその他の操作。</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>A button that opens the settings of the desktop.</extracomment>
        <translation>設定を開く</translation>
    </message>
    <message>
        <source>Click to open · drag into any app · right-click to copy, AirDrop or add to the Shelf.</source>
        <translation>クリックで開く · アプリへドラッグ · 右クリック：コピー、送信、シェルフ</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>ファイルマネージャーで表示</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>デバイスに送信</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>A button: take all files off the shelf.</extracomment>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Take a file off the shelf; the file itself stays where it is.</extracomment>
        <translation>取り除く</translation>
    </message>
    <message>
        <source>Paste your script here. It scrolls right under the camera so you keep eye contact.</source>
        <translation>ここに原稿を貼り付けます。カメラのすぐ下を流れるので、視線を保てます。</translation>
    </message>
    <message>
        <source>Script</source>
        <extracomment>Name of the field for the text that is read aloud.</extracomment>
        <translation>原稿</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>A button: scroll the script from its beginning again.</extracomment>
        <translation>最初から</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>How fast the script scrolls.</extracomment>
        <translation>速度</translation>
    </message>
    <message>
        <source>Text %1</source>
        <extracomment>%1 is the size of the letters in points. There is little room.</extracomment>
        <translation>文字 %1</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>文字を小さく</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>文字を大きく</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Add to Shelf</source>
        <translation>シェルフに追加</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>In the menu of a screenshot: copy the picture.</extracomment>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Type the symbols that you want to follow.</source>
        <translation>追跡したい銘柄のシンボルを入力してください。</translation>
    </message>
    <message>
        <source>Symbols, separated by commas (AAPL, TSLA, ^GSPC, BTC-USD)</source>
        <translation>シンボルをカンマ区切りで（AAPL, TSLA, ^GSPC, BTC-USD）</translation>
    </message>
    <message>
        <source>Delayed quotes from Yahoo Finance.</source>
        <translation>Yahoo Financeの株価（遅延あり）。</translation>
    </message>
    <message>
        <source>Edit symbols</source>
        <translation>シンボルを編集</translation>
    </message>
    <message>
        <source>Choose a city to see its weather.</source>
        <translation>都市を選ぶと、その天気が表示されます。</translation>
    </message>
    <message>
        <source>City</source>
        <extracomment>What the empty field for the name of a city says.</extracomment>
        <translation>都市</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>現在地を使用</translation>
    </message>
    <message>
        <source>Change city</source>
        <translation>都市を変更</translation>
    </message>
    <message>
        <source>Forecast by Open-Meteo. Only the city&apos;s coordinates are sent.</source>
        <translation>予報：Open-Meteo。送信されるのは都市の座標だけです。</translation>
    </message>
    <message>
        <source>Weather is not available right now.</source>
        <translation>現在、天気を取得できません。</translation>
    </message>
    <message>
        <source>City not found.</source>
        <translation>都市が見つかりません。</translation>
    </message>
    <message>
        <source>My location</source>
        <extracomment>In the place of a city’s name.</extracomment>
        <translation>現在地</translation>
    </message>
    <message>
        <source>Location not available. Type a city instead.</source>
        <translation>現在地を取得できません。都市を入力してください。</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <extracomment>%1 is a list of the symbols of shares.</extracomment>
        <translation>見つかりません：%1</translation>
    </message>
    <message>
        <source>Wind %1 mph</source>
        <extracomment>%1 is a speed in miles an hour.</extracomment>
        <translation>風速 %1 mph</translation>
    </message>
    <message>
        <source>Wind %1 km/h</source>
        <extracomment>%1 is a speed in kilometres an hour.</extracomment>
        <translation>風速 %1 km/h</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>Allow %1 to control Music or Spotify in
System Settings › Privacy &amp; Security › Automation.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>%1にメディアプレーヤーの操作を許可してください：
デスクトップのプライバシー設定</translation>
    </message>
    <message>
        <source>Play something in Music or Spotify
and it shows up here.</source>
        <translation>メディアプレーヤーで何か再生すると、
ここに表示されます。</translation>
    </message>
    <message>
        <source>Previous</source>
        <extracomment>The previous song.</extracomment>
        <translation>前へ</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>The next song.</extracomment>
        <translation>次へ</translation>
    </message>
    <message>
        <source>charging</source>
        <extracomment>Of the battery, after its level: “80% · charging”.</extracomment>
        <translation>充電中</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>バッテリー</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>The processor and how busy it is. There is little room.</extracomment>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>The working memory (RAM).</extracomment>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is an amount with its unit, such as 12.3 GB.</extracomment>
        <translation>空き%1</translation>
    </message>
    <message>
        <source>No camera found.</source>
        <translation>カメラが見つかりません。</translation>
    </message>
    <message>
        <source>Allow %1 to use the camera in
System Settings › Privacy &amp; Security › Camera.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>%1にカメラの使用を許可してください：
デスクトップのプライバシー設定</translation>
    </message>
    <message>
        <source>Events</source>
        <extracomment>Heading of the list of appointments.</extracomment>
        <translation>予定</translation>
    </message>
    <message>
        <source>Allow Calendar</source>
        <translation>カレンダーを許可</translation>
    </message>
    <message>
        <source>Nothing else today or tomorrow.</source>
        <translation>今日と明日の予定はもうありません。</translation>
    </message>
    <message>
        <source>Allow Reminders</source>
        <translation>リマインダーを許可</translation>
    </message>
    <message>
        <source>All done</source>
        <extracomment>Instead of a list: no reminder is left.</extracomment>
        <translation>すべて完了</translation>
    </message>
    <message>
        <source>Nothing else today.</source>
        <translation>今日の予定はもうありません。</translation>
    </message>
    <message>
        <source>Complete</source>
        <extracomment>A verb, on the circle before a reminder: mark it as done.</extracomment>
        <translation>完了にする</translation>
    </message>
    <message>
        <source>Event</source>
        <extracomment>The title of an appointment that has none.</extracomment>
        <translation>予定</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>明日</translation>
    </message>
    <message>
        <source>All day</source>
        <extracomment>In the place of an appointment’s time.</extracomment>
        <translation>終日</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨日</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Want more? Meet Fennivar</source>
        <translation>もっと便利に使うならFennivar</translation>
    </message>
    <message>
        <source>Kestrune is one piece of Fennivar, the all-in-one app that makes your Mac work the way it should.</source>
        <translation>Kestruneは、コンピュータを本来あるべき姿で使えるようにするオールインワンアプリFennivarの一部です。</translation>
    </message>
    <message>
        <source>Snap windows into place with a key or a drag</source>
        <translation>キーやドラッグでウインドウをぴったり配置</translation>
    </message>
    <message>
        <source>Find files, apps and settings from one field</source>
        <translation>ファイル、アプリ、設定をひとつの欄で検索</translation>
    </message>
    <message>
        <source>See what fills your disk and free it up</source>
        <translation>ディスクを占めるものを確認して空きを確保</translation>
    </message>
    <message>
        <source>Keep an eye on the battery and make it last</source>
        <translation>バッテリーを見守って長持ちさせる</translation>
    </message>
    <message>
        <source>Discover Fennivar ↗</source>
        <translation>Fennivarを見る ↗</translation>
    </message>
    <message>
        <source>Opening</source>
        <extracomment>Heading of the settings that say how the notch opens.</extracomment>
        <translation>開き方</translation>
    </message>
    <message>
        <source>Open the notch</source>
        <extracomment>Followed by the choice of “On hover” and “On click”.</extracomment>
        <translation>ノッチを開く</translation>
    </message>
    <message>
        <source>Hover delay</source>
        <extracomment>How long the pointer rests on the notch before it opens; beside a slider.</extracomment>
        <translation>ホバー時の待ち時間</translation>
    </message>
    <message>
        <source>Open and close with ⌃⌥⌘N</source>
        <translation>Ctrl+Alt+Super+Nで開閉する</translation>
    </message>
    <message>
        <source>Show the song or timer beside the closed notch</source>
        <translation>閉じたノッチの横に曲やタイマーを表示</translation>
    </message>
    <message>
        <source>Show new screenshots beside the notch</source>
        <translation>ノッチの横に新しいスクリーンショットを表示</translation>
    </message>
    <message>
        <source>Displays</source>
        <extracomment>Heading of the settings that are about monitors.</extracomment>
        <translation>ディスプレイ</translation>
    </message>
    <message>
        <source>Show on every display</source>
        <translation>すべてのディスプレイに表示</translation>
    </message>
    <message>
        <source>Draw a notch on displays without one</source>
        <translation>ノッチのないディスプレイにノッチを描く</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>プライバシー</translation>
    </message>
    <message>
        <source>Everything stays on this Mac. Weather asks Open-Meteo for your city&apos;s forecast and Stocks asks Yahoo Finance for quotes; nothing else goes online.</source>
        <translation>すべてこのコンピュータに留まります。「天気」はOpen-Meteoに都市の予報を、「株価」はYahoo Financeに株価を問い合わせます。それ以外はネットに接続しません。</translation>
    </message>
    <message>
        <source>Keep a clipboard history</source>
        <translation>クリップボードの履歴を残す</translation>
    </message>
    <message>
        <source>Read Codex usage (~/.codex)</source>
        <translation>Codexの使用量を読む（~/.codex）</translation>
    </message>
    <message>
        <source>Read Claude Code usage (~/.claude)</source>
        <translation>Claude Codeの使用量を読む（~/.claude）</translation>
    </message>
    <message>
        <source>Temperatures in °F</source>
        <translation>気温を°Fで表示</translation>
    </message>
    <message>
        <source>Home screen</source>
        <translation>ホーム画面</translation>
    </message>
    <message>
        <source>Restore default layout</source>
        <translation>デフォルトの配置に戻す</translation>
    </message>
    <message>
        <source>Leave it at 0 to compare with your busiest block of the week. Anthropic does not publish limits in tokens, so set your own if you know it.</source>
        <translation>0のままにすると、今週最も多く使ったブロックと比較します。Anthropicはトークン単位の上限を公開していません。わかる場合は自分で入力してください。</translation>
    </message>
    <message>
        <source>Claude 5-hour budget (tokens)</source>
        <translation>Claudeの5時間の予算（トークン）</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Kestrune Settings</source>
        <translation>Kestruneの設定</translation>
    </message>
    <message>
        <source>This copy gets its updates with its package, or from whoever built it.</source>
        <translation>このコピーは、パッケージとともに、またはビルドした人によって更新されます。</translation>
    </message>
    <message>
        <source>Open Kestrune at login</source>
        <translation>ログイン時にKestruneを開く</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>アップデートを自動的にインストール</translation>
    </message>
    <message>
        <source>Open Notch</source>
        <translation>ノッチを開く</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Get more tools: Fennivar ↗</source>
        <translation>他のツール：Fennivar ↗</translation>
    </message>
    <message>
        <source>Quit Kestrune</source>
        <translation>Kestruneを終了</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>%1 is a number of milliseconds.</extracomment>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Kestrune then looks once a day, downloads what is new and asks before it is installed.</source>
        <translation>オンにすると、Kestruneは1日に1回確認して新しいものをダウンロードし、インストール前に確認します。</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>ソフトウェア・アップデート</translation>
    </message>
    <message>
        <source>The list of releases is not signed by Kestrune’s makers, so it was ignored.</source>
        <translation>リリースの一覧にKestruneの作者の署名がないため、無視されました。</translation>
    </message>
    <message>
        <source>The list of releases could not be read. Are you online?</source>
        <translation>リリースの一覧を読み込めませんでした。オンラインですか？</translation>
    </message>
    <message>
        <source>The list of releases is older than one seen before, so it was ignored.</source>
        <translation>リリースの一覧が以前のものより古いため、無視されました。</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Are you online?</source>
        <translation>アップデートをダウンロードできませんでした。オンラインですか？</translation>
    </message>
    <message>
        <source>The update is not what Kestrune’s makers signed, so it was not kept.</source>
        <translation>アップデートがKestruneの作者の署名したものではないため、保存されませんでした。</translation>
    </message>
    <message>
        <source>The update could not be saved. Is the disk full?</source>
        <translation>アップデートを保存できませんでした。ディスクがいっぱいではありませんか？</translation>
    </message>
    <message>
        <source>The downloaded update was changed or removed.</source>
        <translation>ダウンロードしたアップデートが変更されたか、削除されました。</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>アップデートを確認中…</translation>
    </message>
    <message>
        <source>Kestrune is up to date</source>
        <translation>Kestruneは最新です</translation>
    </message>
    <message>
        <source>Kestrune %1 is available</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Kestrune %1を利用できます</translation>
    </message>
    <message>
        <source>Downloading Kestrune %1…</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Kestrune %1をダウンロード中…</translation>
    </message>
    <message>
        <source>Kestrune %1 is ready to install</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Kestrune %1をインストールできます</translation>
    </message>
    <message>
        <source>Kestrune could not be updated</source>
        <translation>Kestruneをアップデートできませんでした</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>バージョン%1が最新です。</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>現在のバージョンは%1です。</translation>
    </message>
    <message>
        <source>It was checked: it comes from Kestrune’s makers.</source>
        <translation>確認済み：Kestruneの作者が提供したものです。</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>A verb, on a button.</extracomment>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Install…</source>
        <translation>インストール…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>A button that closes the window of an update.</extracomment>
        <translation>あとで</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Bound to %1</source>
        <extracomment>%1 is a combination of keys, as the desktop writes it.</extracomment>
        <translation>割り当て: %1</translation>
    </message>
    <message>
        <source>Another program has these keys. In the desktop’s settings, bind others to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>このキーは別のプログラムが使っています。デスクトップの設定で、別のキーを次のコマンドに割り当ててください: %1</translation>
    </message>
    <message>
        <source>No keys are bound. In the desktop’s settings, bind some to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>キーが割り当てられていません。デスクトップの設定で、キーを次のコマンドに割り当ててください: %1</translation>
    </message>
    <message>
        <source>The list of releases has expired, so it was ignored. Is the clock set right?</source>
        <translation>リリースの一覧の有効期限が切れているため、無視されました。時計は合っていますか？</translation>
    </message>
    <message>
        <source>The list of releases is dated in the future, so it was ignored. Is the clock set right?</source>
        <translation>リリースの一覧の日付が未来になっているため、無視されました。時計は合っていますか？</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>The name of a calendar in quotation marks.</extracomment>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>Could not be read in full: %1</source>
        <extracomment>%1 is the name of a calendar in quotation marks, or several with commas between them.</extracomment>
        <translation>完全には読み込めませんでした：%1</translation>
    </message>
    <message>
        <source>Renewed; figures of %1</source>
        <extracomment>A limit has begun anew since it was read; %1 is when that was, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>リセット済み（%1の数値）</translation>
    </message>
    <message>
        <source>All day, since %1</source>
        <extracomment>In the place of an appointment’s time; %1 is the day before today when it began, such as “Mon”.</extracomment>
        <translation>終日（%1から）</translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>When an appointment began; %1 is a day before today and a time, such as “Mon 14:05”.</extracomment>
        <translation>%1から</translation>
    </message>
    <message>
        <source>Hide over full-screen windows</source>
        <extracomment>The closed notch; displays with a camera housing keep theirs.</extracomment>
        <translation>フルスクリーンウインドウの上では隠す</translation>
    </message>
    <message>
        <source>Panels at the top edge</source>
        <extracomment>Other programs&apos; bars along the top of the screen; followed by a choice of where the notch is.</extracomment>
        <translation>上端のパネル</translation>
    </message>
    <message>
        <source>Automatic</source>
        <extracomment>Completes “Panels at the top edge”: below them, but around a camera.</extracomment>
        <translation>自動</translation>
    </message>
    <message>
        <source>Notch over them</source>
        <extracomment>Completes “Panels at the top edge”: the notch lies over them.</extracomment>
        <translation>ノッチを重ねる</translation>
    </message>
    <message>
        <source>Notch below them</source>
        <extracomment>Completes “Panels at the top edge”: the notch hangs below them.</extracomment>
        <translation>ノッチを下に置く</translation>
    </message>
    <message>
        <source>Press the keys…</source>
        <translation>キーを押してください…</translation>
    </message>
    <message>
        <source>Keys that open and close the notch: %1</source>
        <translation>ノッチを開閉するキー：%1</translation>
    </message>
    <message>
        <source>Keys</source>
        <extracomment>Beside a button that shows the keys of the hot key.</extracomment>
        <translation>キー</translation>
    </message>
    <message>
        <source>Open and close with %1</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>%1で開閉する</translation>
    </message>
    <message>
        <source>Pin</source>
        <extracomment>In the menu of an entry of the clipboard history: keep it until it is deleted.</extracomment>
        <translation>固定</translation>
    </message>
    <message>
        <source>Pinned</source>
        <extracomment>Said of an entry of the clipboard history that is kept until the user deletes it.</extracomment>
        <translation>固定済み</translation>
    </message>
    <message>
        <source>Cut</source>
        <extracomment>In the menu of a text field, as “Copy”, “Paste” and “Select All”.</extracomment>
        <translation>カット</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>ペースト</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべてを選択</translation>
    </message>
    <message>
        <source>Play and pause the teleprompter with Ctrl+Alt+Super+P</source>
        <translation>Ctrl+Alt+Super+Pでテレプロンプターを再生・一時停止</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>ゴミ箱に移動</translation>
    </message>
    <message>
        <source>Choose the camera</source>
        <translation>カメラを選択</translation>
    </message>
    <message>
        <source>The desktop will ask you for the camera.</source>
        <translation>デスクトップがカメラの使用を確認します。</translation>
    </message>
    <message>
        <source>Turn On Camera</source>
        <translation>カメラをオンにする</translation>
    </message>
    <message>
        <source>You refused the camera before, and the desktop remembers it.
Allow it in the desktop’s privacy settings.</source>
        <translation>以前カメラを拒否したため、デスクトップがそれを記憶しています。
デスクトップのプライバシー設定で許可してください。</translation>
    </message>
    <message>
        <source>Cannot be reached now</source>
        <translation>今はアクセスできません</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>How long the rest of the script takes to scroll past. %1 is a time such as 3:05.</extracomment>
        <translation>残り%1</translation>
    </message>
    <message>
        <source>Play or pause the teleprompter</source>
        <extracomment>What a hot key does, in the desktop&apos;s settings.</extracomment>
        <translation>テレプロンプターを再生または一時停止</translation>
    </message>
    <message>
        <source>To send files, KDE Connect or GSConnect has to run.</source>
        <translation>ファイルを送信するには、KDE ConnectまたはGSConnectの起動が必要です。</translation>
    </message>
    <message>
        <source>Sending to %1…</source>
        <translation>%1に送信中…</translation>
    </message>
    <message>
        <source>On the way to %1.</source>
        <extracomment>The files have been handed over to the service that sends them.</extracomment>
        <translation>%1に送っています。</translation>
    </message>
    <message>
        <source>Could not be sent to %1.</source>
        <translation>%1に送信できませんでした。</translation>
    </message>
    <message>
        <source>No paired device is in reach.</source>
        <translation>ペアリング済みのデバイスが近くにありません。</translation>
    </message>
    <message numerus="yes">
        <source>Send %Ln files to %1</source>
        <extracomment>An entry of a menu. %1 is the name of a phone or of another computer.</extracomment>
        <translation>
            <numerusform>%Ln個のファイルを%1に送信</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash.</source>
        <translation>%1をゴミ箱に移動できませんでした。</translation>
    </message>
    <message>
        <source>Default Camera</source>
        <extracomment>The first of the cameras to choose from: whichever the desktop takes.</extracomment>
        <translation>デフォルトのカメラ</translation>
    </message>
    <message>
        <source>Minutes</source>
        <extracomment>What the empty field for the length of a timer says.</extracomment>
        <translation>分</translation>
    </message>
    <message>
        <source>One minute less</source>
        <translation>1分短く</translation>
    </message>
    <message>
        <source>One minute more</source>
        <translation>1分長く</translation>
    </message>
    <message>
        <source>The time is up.</source>
        <extracomment>The timer has run down.</extracomment>
        <translation>時間になりました。</translation>
    </message>
    <message>
        <source>As of %1</source>
        <extracomment>Beside figures that could not be fetched anew; %1 is when they came, such as “14:05” or “24.12.26 14:05”.</extracomment>
        <translation>%1時点</translation>
    </message>
    <message>
        <source>Quotes are not available right now.</source>
        <extracomment>The prices of shares, which a server on the web tells.</extracomment>
        <translation>現在、株価を取得できません。</translation>
    </message>
</context>
</TS>
