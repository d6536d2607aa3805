<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>notch</name>
    <message>
        <source>Unpin</source>
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
        <translation>開始</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>%d min</source>
        <translation>%d分</translation>
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
        <translation>削除</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>コピー済み</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Text</source>
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
        <translation>画像</translation>
    </message>
    <message>
        <source>Connect Codex or Claude Code to see your limits.</source>
        <translation>CodexかClaude Codeを接続すると、利用枠が表示されます。</translation>
    </message>
    <message>
        <source>Reads the plan limits that Codex CLI saves in ~/.codex on this Mac.</source>
        <translation>Codex CLIがこのMacの~/.codexに保存するプランの利用枠を読み取ります。</translation>
    </message>
    <message>
        <source>Adds up the tokens that Claude Code logs in ~/.claude on this Mac. Anthropic does not store your remaining limit locally.</source>
        <translation>Claude CodeがこのMacの~/.claudeに記録するトークンを合計します。Anthropicは残りの利用枠をローカルに保存しません。</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>過去7日間</translation>
    </message>
    <message>
        <source>Nothing leaves your Mac.</source>
        <translation>Macの外には何も送信されません。</translation>
    </message>
    <message>
        <source>Read again</source>
        <translation>再読み込み</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>%@ tokens</source>
        <translation>%@トークン</translation>
    </message>
    <message>
        <source>%d%% left</source>
        <translation>残り%d%%</translation>
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
        <source>Updated %@</source>
        <translation>更新：%@</translation>
    </message>
    <message>
        <source>5-hour window</source>
        <translation>5時間枠</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>週間</translation>
    </message>
    <message>
        <source>No Claude Code activity found.</source>
        <translation>Claude Codeの使用記録がありません。</translation>
    </message>
    <message>
        <source>%d%% of your budget</source>
        <translation>予算の%d%%</translation>
    </message>
    <message>
        <source>%d%% of your busiest block this week</source>
        <translation>今週最多ブロックの%d%%</translation>
    </message>
    <message>
        <source>This 5-hour block</source>
        <translation>この5時間ブロック</translation>
    </message>
    <message>
        <source>Resets: %@</source>
        <translation>リセット：%@</translation>
    </message>
    <message>
        <source>%d%%</source>
        <translation>%d%%</translation>
    </message>
    <message>
        <source>Drop files here to keep them handy.
Drag them out anywhere, or AirDrop them.</source>
        <translation>ファイルをここにドロップすると、すぐに使えます。
ここからどこへでもドラッグでき、AirDropでも送れます。</translation>
    </message>
    <message>
        <source>Allow %@ to read your screenshots folder in
System Settings › Privacy &amp; Security › Files and Folders.</source>
        <translation>%@にスクリーンショットのフォルダの読み取りを許可してください：
システム設定 › プライバシーとセキュリティ › ファイルとフォルダ</translation>
    </message>
    <message>
        <source>Take a screenshot (⇧⌘4) and it appears here.
Drag it into any app, or right-click for more.</source>
        <translation>スクリーンショットを撮ると（⇧⌘4）、ここに表示されます。
アプリへドラッグできます。右クリックでその他の操作。</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>設定を開く</translation>
    </message>
    <message>
        <source>Click to open · drag into any app · right-click to copy, AirDrop or add to the Shelf.</source>
        <translation>クリックで開く · アプリへドラッグ · 右クリック：コピー、AirDrop、シェルフ</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>ファイルマネージャーで表示</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>AirDrop</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>取り除く</translation>
    </message>
    <message>
        <source>Paste your script here. It scrolls right under the camera so you keep eye contact.</source>
        <translation>ここに原稿を貼り付けます。カメラのすぐ下を流れるので、視線を保てます。</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>原稿</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>最初から</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Text %d</source>
        <translation>文字 %d</translation>
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
        <translation>現在地</translation>
    </message>
    <message>
        <source>Location not available. Type a city instead.</source>
        <translation>現在地を取得できません。都市を入力してください。</translation>
    </message>
    <message>
        <source>Not found: %@</source>
        <translation>見つかりません：%@</translation>
    </message>
    <message>
        <source>Wind %@ mph</source>
        <translation>風速 %@ mph</translation>
    </message>
    <message>
        <source>Wind %@ km/h</source>
        <translation>風速 %@ km/h</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>Allow %@ to control Music or Spotify in
System Settings › Privacy &amp; Security › Automation.</source>
        <translation>%@にMusicまたはSpotifyの操作を許可してください：
システム設定 › プライバシーとセキュリティ › オートメーション</translation>
    </message>
    <message>
        <source>Play something in Music or Spotify
and it shows up here.</source>
        <translation>MusicかSpotifyで何か再生すると、
ここに表示されます。</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>前へ</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>charging</source>
        <translation>充電中</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>バッテリー</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>%@ free</source>
        <translation>空き%@</translation>
    </message>
    <message>
        <source>No camera found.</source>
        <translation>カメラが見つかりません。</translation>
    </message>
    <message>
        <source>Allow %@ to use the camera in
System Settings › Privacy &amp; Security › Camera.</source>
        <translation>%@にカメラの使用を許可してください：
システム設定 › プライバシーとセキュリティ › カメラ</translation>
    </message>
    <message>
        <source>Events</source>
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
        <translation>すべて完了</translation>
    </message>
    <message>
        <source>Nothing else today.</source>
        <translation>今日の予定はもうありません。</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>完了にする</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>予定</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>明日</translation>
    </message>
    <message>
        <source>All day</source>
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
        <translation>Kestruneは、Macを本来あるべき姿で使えるようにするオールインワンアプリFennivarの一部です。</translation>
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
        <translation>開き方</translation>
    </message>
    <message>
        <source>Open the notch</source>
        <translation>ノッチを開く</translation>
    </message>
    <message>
        <source>Hover delay</source>
        <translation>ホバー時の待ち時間</translation>
    </message>
    <message>
        <source>Open and close with ⌃⌥⌘N</source>
        <translation>⌃⌥⌘Nで開閉する</translation>
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
        <translation>すべてこのMacに留まります。「天気」はOpen-Meteoに都市の予報を、「株価」はYahoo Financeに株価を問い合わせます。それ以外はネットに接続しません。</translation>
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
        <source>Kestrune %@ is available</source>
        <translation>Kestrune %@を利用できます</translation>
    </message>
    <message>
        <source>Downloading Kestrune %@…</source>
        <translation>Kestrune %@をダウンロード中…</translation>
    </message>
    <message>
        <source>Kestrune %@ is ready to install</source>
        <translation>Kestrune %@をインストールできます</translation>
    </message>
    <message>
        <source>Kestrune could not be updated</source>
        <translation>Kestruneをアップデートできませんでした</translation>
    </message>
    <message>
        <source>Version %@ is the newest one.</source>
        <translation>バージョン%@が最新です。</translation>
    </message>
    <message>
        <source>You have version %@.</source>
        <translation>現在のバージョンは%@です。</translation>
    </message>
    <message>
        <source>It was checked: it comes from Kestrune’s makers.</source>
        <translation>確認済み：Kestruneの作者が提供したものです。</translation>
    </message>
    <message>
        <source>Download</source>
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
        <translation>あとで</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
</TS>
