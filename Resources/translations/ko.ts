<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>notch</name>
    <message>
        <source>Unpin</source>
        <extracomment>Let the notch close by itself again; the opposite of “Keep open”.</extracomment>
        <translation>고정 해제</translation>
    </message>
    <message>
        <source>Keep open</source>
        <translation>열어 두기</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Good night</source>
        <translation>좋은 밤이에요</translation>
    </message>
    <message>
        <source>Good morning</source>
        <translation>좋은 아침이에요</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>좋은 오후예요</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>좋은 저녁이에요</translation>
    </message>
    <message>
        <source>Choose what Home shows in Settings › Home screen.</source>
        <translation>여기에 표시할 항목은 설정 › 홈 화면에서 선택하세요.</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>A note to oneself, such as one jots down.</extracomment>
        <translation>메모</translation>
    </message>
    <message>
        <source>Quick note… it saves as you type.</source>
        <translation>빠른 메모… 입력하는 대로 저장됩니다.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Timer</source>
        <translation>타이머</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시정지</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>재개</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>Start the timer.</extracomment>
        <translation>시작</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>Set the timer back to its beginning.</extracomment>
        <translation>재설정</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>A button of the script: “Edit” begins to change it, “Done” ends that.
----------
The time of the timer is over.</extracomment>
        <translation>완료</translation>
    </message>
    <message numerus="yes">
        <source>%Ln min</source>
        <extracomment>A button that starts a timer; “min” is short for minutes. There is little room.</extracomment>
        <translation>
            <numerusform>%Ln분</numerusform>
        </translation>
    </message>
    <message>
        <source>The time stays visible beside the closed notch.</source>
        <translation>노치를 닫아도 시간이 옆에 계속 표시됩니다.</translation>
    </message>
    <message>
        <source>Fennivar’s notch is on, so Kestrune is paused.</source>
        <translation>Fennivar의 노치가 켜져 있어 Kestrune이 일시정지되었습니다.</translation>
    </message>
    <message>
        <source>Turn off Notch in Fennivar to use Kestrune.</source>
        <translation>Kestrune을 사용하려면 Fennivar에서 노치를 끄세요.</translation>
    </message>
    <message>
        <source>Home</source>
        <extracomment>The page that the notch opens with, like that of a telephone.</extracomment>
        <translation>홈</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>지금 재생 중</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>클립보드</translation>
    </message>
    <message>
        <source>Screenshots</source>
        <translation>스크린샷</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>캘린더</translation>
    </message>
    <message>
        <source>Shelf</source>
        <extracomment>A place where files are put down for a while.</extracomment>
        <translation>선반</translation>
    </message>
    <message>
        <source>AI Usage</source>
        <translation>AI 사용량</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>날씨</translation>
    </message>
    <message>
        <source>Stocks</source>
        <extracomment>The prices of shares.</extracomment>
        <translation>주식</translation>
    </message>
    <message>
        <source>Teleprompter</source>
        <translation>텔레프롬프터</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>거울</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>Processor, memory, disk and battery of this computer.</extracomment>
        <translation>시스템</translation>
    </message>
    <message>
        <source>Greeting and date</source>
        <translation>인사말과 날짜</translation>
    </message>
    <message>
        <source>Today&apos;s events</source>
        <translation>오늘 일정</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>미리 알림</translation>
    </message>
    <message>
        <source>Latest copies</source>
        <translation>최근 복사</translation>
    </message>
    <message>
        <source>Latest screenshots</source>
        <translation>최근 스크린샷</translation>
    </message>
    <message>
        <source>Hidden</source>
        <extracomment>Where a block of Home stands: nowhere. The others are its three columns.</extracomment>
        <translation>숨김</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>중앙</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>On hover</source>
        <extracomment>Completes “Open the notch”: when the pointer rests on it.</extracomment>
        <translation>가리킬 때</translation>
    </message>
    <message>
        <source>On click</source>
        <translation>클릭할 때</translation>
    </message>
    <message>
        <source>More tools at fennivar.example</source>
        <translation>더 보기: fennivar.example</translation>
    </message>
    <message>
        <source>this app</source>
        <extracomment>Stands for the name of the program where it has none.</extracomment>
        <translation>이 앱</translation>
    </message>
    <message>
        <source>Copy something and it appears here.
Passwords from password managers are never saved.</source>
        <translation>무언가를 복사하면 여기에 표시됩니다.
암호 관리자의 암호는 저장하지 않습니다.</translation>
    </message>
    <message>
        <source>Clipboard history is off.
Turn it on in Settings.</source>
        <translation>클립보드 기록이 꺼져 있습니다.
설정에서 켜세요.</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>기록 지우기</translation>
    </message>
    <message>
        <source>Nothing matches.</source>
        <translation>결과가 없습니다.</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>In the menu of an entry: delete it from the history.</extracomment>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Copied</source>
        <extracomment>Shown in the place of what was just copied again.</extracomment>
        <translation>복사됨</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>What an empty search field says, and the button that looks for a city.</extracomment>
        <translation>검색</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>What the list shows: copies of every kind.</extracomment>
        <translation>전체</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>What the list shows: the copies that are texts.</extracomment>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>링크</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>이미지</translation>
    </message>
    <message>
        <source>PDFs</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>The title of a copied picture, before its size.</extracomment>
        <translation>이미지</translation>
    </message>
    <message>
        <source>Connect Codex or Claude Code to see your limits.</source>
        <translation>Codex 또는 Claude Code를 연결하면 한도가 표시됩니다.</translation>
    </message>
    <message>
        <source>Reads the plan limits that Codex CLI saves in ~/.codex on this Mac.</source>
        <translation>Codex CLI가 이 컴퓨터의 ~/.codex에 저장하는 요금제 한도를 읽습니다.</translation>
    </message>
    <message>
        <source>Adds up the tokens that Claude Code logs in ~/.claude on this Mac. Anthropic does not store your remaining limit locally.</source>
        <translation>Claude Code가 이 컴퓨터의 ~/.claude에 기록하는 토큰을 합산합니다. Anthropic은 남은 한도를 로컬에 저장하지 않습니다.</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>최근 7일</translation>
    </message>
    <message>
        <source>Nothing leaves your Mac.</source>
        <translation>데이터가 컴퓨터를 떠나지 않습니다.</translation>
    </message>
    <message>
        <source>Read again</source>
        <extracomment>On a round button: read the logs once more.</extracomment>
        <translation>다시 읽기</translation>
    </message>
    <message>
        <source>Connect</source>
        <extracomment>A button: begin to read the usage of a program.</extracomment>
        <translation>연결</translation>
    </message>
    <message numerus="yes">
        <source>%1 tokens</source>
        <extracomment>%1 is the number of tokens, the pieces of text that a language model counts in.</extracomment>
        <translation>
            <numerusform>%1 토큰</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln% left</source>
        <extracomment>What is left of a limit, in per cent.</extracomment>
        <translation>
            <numerusform>%Ln% 남음</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>읽는 중…</translation>
    </message>
    <message>
        <source>No Codex activity found yet. Use Codex once and it appears here.</source>
        <translation>아직 Codex 활동이 없습니다. Codex를 한 번 사용하면 여기에 표시됩니다.</translation>
    </message>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is a time, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>업데이트: %1</translation>
    </message>
    <message>
        <source>5-hour window</source>
        <extracomment>The name of a limit that holds for five hours.</extracomment>
        <translation>5시간 구간</translation>
    </message>
    <message>
        <source>Weekly</source>
        <extracomment>The name of a limit that holds for a week.</extracomment>
        <translation>주간</translation>
    </message>
    <message>
        <source>No Claude Code activity found.</source>
        <translation>Claude Code 활동이 없습니다.</translation>
    </message>
    <message>
        <source>%1% of your budget</source>
        <extracomment>%1 is a number. There is little room.</extracomment>
        <translation>예산의 %1%</translation>
    </message>
    <message>
        <source>%1% of your busiest block this week</source>
        <extracomment>%1 is a number; a block is five hours of work. There is little room.</extracomment>
        <translation>이번 주 최다 사용 블록의 %1%</translation>
    </message>
    <message>
        <source>This 5-hour block</source>
        <translation>현재 5시간 블록</translation>
    </message>
    <message>
        <source>Resets: %1</source>
        <extracomment>When a limit begins anew; %1 is a time, such as “14:05” or “Mon 14:05”. There is little room.</extracomment>
        <translation>초기화: %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>%1 is a number, with decimals where it is the change of a share’s price.</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Drop files here to keep them handy.
Drag them out anywhere, or AirDrop them.</source>
        <translation>파일을 여기에 놓아두면 바로 쓸 수 있습니다.
어디로든 드래그하거나 기기로 보내세요.</translation>
    </message>
    <message>
        <source>Allow %1 to read your screenshots folder in
System Settings › Privacy &amp; Security › Files and Folders.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>%1에 스크린샷 폴더 읽기를 허용하세요:
폴더의 권한이 막고 있습니다.</translation>
    </message>
    <message>
        <source>Take a screenshot (⇧⌘4) and it appears here.
Drag it into any app, or right-click for more.</source>
        <translation>스크린샷을 찍으면(Print Screen) 여기에 표시됩니다.
앱으로 드래그하거나 오른쪽 클릭으로 더 많은 작업을 하세요.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>A button that opens the settings of the desktop.</extracomment>
        <translation>설정 열기</translation>
    </message>
    <message>
        <source>Click to open · drag into any app · right-click to copy, AirDrop or add to the Shelf.</source>
        <translation>클릭하면 열기 · 앱으로 드래그 · 오른쪽 클릭: 복사, 보내기, 선반</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>파일 관리자에서 보기</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>기기로 보내기</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>A button: take all files off the shelf.</extracomment>
        <translation>비우기</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Take a file off the shelf; the file itself stays where it is.</extracomment>
        <translation>제거</translation>
    </message>
    <message>
        <source>Paste your script here. It scrolls right under the camera so you keep eye contact.</source>
        <translation>여기에 대본을 붙여넣으세요. 카메라 바로 아래에서 흘러가므로 시선을 유지할 수 있습니다.</translation>
    </message>
    <message>
        <source>Script</source>
        <extracomment>Name of the field for the text that is read aloud.</extracomment>
        <translation>대본</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>재생</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>A button: scroll the script from its beginning again.</extracomment>
        <translation>처음부터</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>How fast the script scrolls.</extracomment>
        <translation>속도</translation>
    </message>
    <message>
        <source>Text %1</source>
        <extracomment>%1 is the size of the letters in points. There is little room.</extracomment>
        <translation>글자 %1</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>글자 작게</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>글자 크게</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Add to Shelf</source>
        <translation>선반에 추가</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>In the menu of a screenshot: copy the picture.</extracomment>
        <translation>복사</translation>
    </message>
    <message>
        <source>Type the symbols that you want to follow.</source>
        <translation>관심 있는 종목의 심볼을 입력하세요.</translation>
    </message>
    <message>
        <source>Symbols, separated by commas (AAPL, TSLA, ^GSPC, BTC-USD)</source>
        <translation>심볼을 쉼표로 구분(AAPL, TSLA, ^GSPC, BTC-USD)</translation>
    </message>
    <message>
        <source>Delayed quotes from Yahoo Finance.</source>
        <translation>Yahoo Finance의 지연 시세입니다.</translation>
    </message>
    <message>
        <source>Edit symbols</source>
        <translation>심볼 편집</translation>
    </message>
    <message>
        <source>Choose a city to see its weather.</source>
        <translation>도시를 선택하면 날씨가 표시됩니다.</translation>
    </message>
    <message>
        <source>City</source>
        <extracomment>What the empty field for the name of a city says.</extracomment>
        <translation>도시</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>내 위치 사용</translation>
    </message>
    <message>
        <source>Change city</source>
        <translation>도시 변경</translation>
    </message>
    <message>
        <source>Forecast by Open-Meteo. Only the city&apos;s coordinates are sent.</source>
        <translation>예보 제공: Open-Meteo. 도시의 좌표만 전송됩니다.</translation>
    </message>
    <message>
        <source>Weather is not available right now.</source>
        <translation>지금은 날씨를 볼 수 없습니다.</translation>
    </message>
    <message>
        <source>City not found.</source>
        <translation>도시를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>My location</source>
        <extracomment>In the place of a city’s name.</extracomment>
        <translation>내 위치</translation>
    </message>
    <message>
        <source>Location not available. Type a city instead.</source>
        <translation>위치를 알 수 없습니다. 대신 도시를 입력하세요.</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <extracomment>%1 is a list of the symbols of shares.</extracomment>
        <translation>찾을 수 없음: %1</translation>
    </message>
    <message>
        <source>Wind %1 mph</source>
        <extracomment>%1 is a speed in miles an hour.</extracomment>
        <translation>풍속 %1 mph</translation>
    </message>
    <message>
        <source>Wind %1 km/h</source>
        <extracomment>%1 is a speed in kilometres an hour.</extracomment>
        <translation>풍속 %1 km/h</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>오늘</translation>
    </message>
    <message>
        <source>Allow %1 to control Music or Spotify in
System Settings › Privacy &amp; Security › Automation.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>%1에 미디어 플레이어 제어를 허용하세요:
데스크톱의 개인정보 보호 설정.</translation>
    </message>
    <message>
        <source>Play something in Music or Spotify
and it shows up here.</source>
        <translation>미디어 플레이어에서 재생하면
여기에 표시됩니다.</translation>
    </message>
    <message>
        <source>Previous</source>
        <extracomment>The previous song.</extracomment>
        <translation>이전</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>The next song.</extracomment>
        <translation>다음</translation>
    </message>
    <message>
        <source>charging</source>
        <extracomment>Of the battery, after its level: “80% · charging”.</extracomment>
        <translation>충전 중</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>배터리</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>The processor and how busy it is. There is little room.</extracomment>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>The working memory (RAM).</extracomment>
        <translation>메모리</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>디스크</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is an amount with its unit, such as 12.3 GB.</extracomment>
        <translation>%1 남음</translation>
    </message>
    <message>
        <source>No camera found.</source>
        <translation>카메라를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Allow %1 to use the camera in
System Settings › Privacy &amp; Security › Camera.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>%1에 카메라 사용을 허용하세요:
데스크톱의 개인정보 보호 설정.</translation>
    </message>
    <message>
        <source>Events</source>
        <extracomment>Heading of the list of appointments.</extracomment>
        <translation>일정</translation>
    </message>
    <message>
        <source>Allow Calendar</source>
        <translation>캘린더 허용</translation>
    </message>
    <message>
        <source>Nothing else today or tomorrow.</source>
        <translation>오늘과 내일은 일정이 더 없습니다.</translation>
    </message>
    <message>
        <source>Allow Reminders</source>
        <translation>미리 알림 허용</translation>
    </message>
    <message>
        <source>All done</source>
        <extracomment>Instead of a list: no reminder is left.</extracomment>
        <translation>모두 완료</translation>
    </message>
    <message>
        <source>Nothing else today.</source>
        <translation>오늘은 일정이 더 없습니다.</translation>
    </message>
    <message>
        <source>Complete</source>
        <extracomment>A verb, on the circle before a reminder: mark it as done.</extracomment>
        <translation>완료 표시</translation>
    </message>
    <message>
        <source>Event</source>
        <extracomment>The title of an appointment that has none.</extracomment>
        <translation>일정</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>내일</translation>
    </message>
    <message>
        <source>All day</source>
        <extracomment>In the place of an appointment’s time.</extracomment>
        <translation>하루 종일</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>어제</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>위로 이동</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>아래로 이동</translation>
    </message>
    <message>
        <source>Want more? Meet Fennivar</source>
        <translation>더 필요하다면 Fennivar를 만나 보세요</translation>
    </message>
    <message>
        <source>Kestrune is one piece of Fennivar, the all-in-one app that makes your Mac work the way it should.</source>
        <translation>Kestrune은 컴퓨터를 제대로 쓸 수 있게 해 주는 올인원 앱 Fennivar의 일부입니다.</translation>
    </message>
    <message>
        <source>Snap windows into place with a key or a drag</source>
        <translation>키나 드래그로 윈도우를 제자리에 배치</translation>
    </message>
    <message>
        <source>Find files, apps and settings from one field</source>
        <translation>파일, 앱, 설정을 한 곳에서 찾기</translation>
    </message>
    <message>
        <source>See what fills your disk and free it up</source>
        <translation>디스크를 채운 것을 확인하고 공간 확보</translation>
    </message>
    <message>
        <source>Keep an eye on the battery and make it last</source>
        <translation>배터리를 살피고 더 오래 사용</translation>
    </message>
    <message>
        <source>Discover Fennivar ↗</source>
        <translation>Fennivar 알아보기 ↗</translation>
    </message>
    <message>
        <source>Opening</source>
        <extracomment>Heading of the settings that say how the notch opens.</extracomment>
        <translation>열기</translation>
    </message>
    <message>
        <source>Open the notch</source>
        <extracomment>Followed by the choice of “On hover” and “On click”.</extracomment>
        <translation>노치 열기</translation>
    </message>
    <message>
        <source>Hover delay</source>
        <extracomment>How long the pointer rests on the notch before it opens; beside a slider.</extracomment>
        <translation>가리킬 때 지연 시간</translation>
    </message>
    <message>
        <source>Open and close with ⌃⌥⌘N</source>
        <translation>Ctrl+Alt+Super+N으로 열고 닫기</translation>
    </message>
    <message>
        <source>Show the song or timer beside the closed notch</source>
        <translation>닫힌 노치 옆에 노래 또는 타이머 표시</translation>
    </message>
    <message>
        <source>Show new screenshots beside the notch</source>
        <translation>노치 옆에 새 스크린샷 표시</translation>
    </message>
    <message>
        <source>Displays</source>
        <extracomment>Heading of the settings that are about monitors.</extracomment>
        <translation>디스플레이</translation>
    </message>
    <message>
        <source>Show on every display</source>
        <translation>모든 디스플레이에 표시</translation>
    </message>
    <message>
        <source>Draw a notch on displays without one</source>
        <translation>노치 없는 디스플레이에 노치 그리기</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>개인정보 보호</translation>
    </message>
    <message>
        <source>Everything stays on this Mac. Weather asks Open-Meteo for your city&apos;s forecast and Stocks asks Yahoo Finance for quotes; nothing else goes online.</source>
        <translation>모든 것은 이 컴퓨터에 남습니다. ‘날씨’는 Open-Meteo에서 도시의 예보를, ‘주식’은 Yahoo Finance에서 시세를 가져오며 그 외에는 인터넷에 연결하지 않습니다.</translation>
    </message>
    <message>
        <source>Keep a clipboard history</source>
        <translation>클립보드 기록 보관</translation>
    </message>
    <message>
        <source>Read Codex usage (~/.codex)</source>
        <translation>Codex 사용량 읽기(~/.codex)</translation>
    </message>
    <message>
        <source>Read Claude Code usage (~/.claude)</source>
        <translation>Claude Code 사용량 읽기(~/.claude)</translation>
    </message>
    <message>
        <source>Temperatures in °F</source>
        <translation>기온을 °F로 표시</translation>
    </message>
    <message>
        <source>Home screen</source>
        <translation>홈 화면</translation>
    </message>
    <message>
        <source>Restore default layout</source>
        <translation>기본 배치 복원</translation>
    </message>
    <message>
        <source>Leave it at 0 to compare with your busiest block of the week. Anthropic does not publish limits in tokens, so set your own if you know it.</source>
        <translation>0으로 두면 이번 주에 가장 많이 사용한 블록과 비교합니다. Anthropic은 토큰 단위 한도를 공개하지 않으므로, 알고 있다면 직접 입력하세요.</translation>
    </message>
    <message>
        <source>Claude 5-hour budget (tokens)</source>
        <translation>Claude 5시간 예산(토큰)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>도구</translation>
    </message>
    <message>
        <source>Kestrune Settings</source>
        <translation>Kestrune 설정</translation>
    </message>
    <message>
        <source>This copy gets its updates with its package, or from whoever built it.</source>
        <translation>이 사본은 패키지와 함께 또는 빌드한 사람을 통해 업데이트됩니다.</translation>
    </message>
    <message>
        <source>Open Kestrune at login</source>
        <translation>로그인 시 Kestrune 열기</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>업데이트 자동 설치</translation>
    </message>
    <message>
        <source>Open Notch</source>
        <translation>노치 열기</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>설정…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>업데이트 확인…</translation>
    </message>
    <message>
        <source>Get more tools: Fennivar ↗</source>
        <translation>더 많은 도구: Fennivar ↗</translation>
    </message>
    <message>
        <source>Quit Kestrune</source>
        <translation>Kestrune 종료</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>%1 is a number of milliseconds.</extracomment>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Kestrune then looks once a day, downloads what is new and asks before it is installed.</source>
        <translation>켜면 Kestrune이 하루에 한 번 확인하고 새 버전을 다운로드한 뒤 설치 전에 묻습니다.</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>소프트웨어 업데이트</translation>
    </message>
    <message>
        <source>The list of releases is not signed by Kestrune’s makers, so it was ignored.</source>
        <translation>버전 목록에 Kestrune 제작자의 서명이 없어 무시했습니다.</translation>
    </message>
    <message>
        <source>The list of releases could not be read. Are you online?</source>
        <translation>버전 목록을 읽을 수 없습니다. 온라인 상태인가요?</translation>
    </message>
    <message>
        <source>The list of releases is older than one seen before, so it was ignored.</source>
        <translation>버전 목록이 이전 것보다 오래되어 무시했습니다.</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Are you online?</source>
        <translation>업데이트를 다운로드할 수 없습니다. 온라인 상태인가요?</translation>
    </message>
    <message>
        <source>The update is not what Kestrune’s makers signed, so it was not kept.</source>
        <translation>업데이트가 Kestrune 제작자가 서명한 것과 달라 보관하지 않았습니다.</translation>
    </message>
    <message>
        <source>The update could not be saved. Is the disk full?</source>
        <translation>업데이트를 저장할 수 없습니다. 디스크가 가득 찼나요?</translation>
    </message>
    <message>
        <source>The downloaded update was changed or removed.</source>
        <translation>다운로드한 업데이트가 변경되었거나 제거되었습니다.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>업데이트 확인 중…</translation>
    </message>
    <message>
        <source>Kestrune is up to date</source>
        <translation>Kestrune이 최신 버전입니다</translation>
    </message>
    <message>
        <source>Kestrune %1 is available</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Kestrune %1 버전을 사용할 수 있습니다</translation>
    </message>
    <message>
        <source>Downloading Kestrune %1…</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Kestrune %1 다운로드 중…</translation>
    </message>
    <message>
        <source>Kestrune %1 is ready to install</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Kestrune %1 버전을 설치할 수 있습니다</translation>
    </message>
    <message>
        <source>Kestrune could not be updated</source>
        <translation>Kestrune을 업데이트할 수 없습니다</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>%1 버전이 최신입니다.</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>현재 버전은 %1입니다.</translation>
    </message>
    <message>
        <source>It was checked: it comes from Kestrune’s makers.</source>
        <translation>확인됨: Kestrune 제작자가 만든 것입니다.</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>A verb, on a button.</extracomment>
        <translation>다운로드</translation>
    </message>
    <message>
        <source>Install…</source>
        <translation>설치…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>A button that closes the window of an update.</extracomment>
        <translation>나중에</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Bound to %1</source>
        <extracomment>%1 is a combination of keys, as the desktop writes it.</extracomment>
        <translation>지정된 키: %1</translation>
    </message>
    <message>
        <source>Another program has these keys. In the desktop’s settings, bind others to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>다른 프로그램이 이 키를 쓰고 있습니다. 데스크톱 설정에서 다른 키를 다음 명령에 지정하세요: %1</translation>
    </message>
    <message>
        <source>No keys are bound. In the desktop’s settings, bind some to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>지정된 키가 없습니다. 데스크톱 설정에서 키를 다음 명령에 지정하세요: %1</translation>
    </message>
    <message>
        <source>The list of releases has expired, so it was ignored. Is the clock set right?</source>
        <translation>버전 목록이 만료되어 무시했습니다. 시계가 맞나요?</translation>
    </message>
    <message>
        <source>The list of releases is dated in the future, so it was ignored. Is the clock set right?</source>
        <translation>버전 목록의 날짜가 미래로 되어 있어 무시했습니다. 시계가 맞나요?</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>The name of a calendar in quotation marks.</extracomment>
        <translation>‘%1’</translation>
    </message>
    <message>
        <source>Could not be read in full: %1</source>
        <extracomment>%1 is the name of a calendar in quotation marks, or several with commas between them.</extracomment>
        <translation>완전히 읽지 못함: %1</translation>
    </message>
    <message>
        <source>Renewed; figures of %1</source>
        <extracomment>A limit has begun anew since it was read; %1 is when that was, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>초기화됨 (%1 기준 수치)</translation>
    </message>
    <message>
        <source>All day, since %1</source>
        <extracomment>In the place of an appointment’s time; %1 is the day before today when it began, such as “Mon”.</extracomment>
        <translation>하루 종일, %1부터</translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>When an appointment began; %1 is a day before today and a time, such as “Mon 14:05”.</extracomment>
        <translation>%1부터</translation>
    </message>
    <message>
        <source>Hide over full-screen windows</source>
        <extracomment>The closed notch; displays with a camera housing keep theirs.</extracomment>
        <translation>전체 화면 창 위에서 숨기기</translation>
    </message>
    <message>
        <source>Panels at the top edge</source>
        <extracomment>Other programs&apos; bars along the top of the screen; followed by a choice of where the notch is.</extracomment>
        <translation>위쪽 가장자리의 패널</translation>
    </message>
    <message>
        <source>Automatic</source>
        <extracomment>Completes “Panels at the top edge”: below them, but around a camera.</extracomment>
        <translation>자동</translation>
    </message>
    <message>
        <source>Notch over them</source>
        <extracomment>Completes “Panels at the top edge”: the notch lies over them.</extracomment>
        <translation>노치를 위에 겹치기</translation>
    </message>
    <message>
        <source>Notch below them</source>
        <extracomment>Completes “Panels at the top edge”: the notch hangs below them.</extracomment>
        <translation>노치를 아래에 두기</translation>
    </message>
    <message>
        <source>Press the keys…</source>
        <translation>키를 누르세요…</translation>
    </message>
    <message>
        <source>Keys that open and close the notch: %1</source>
        <translation>노치를 열고 닫는 키: %1</translation>
    </message>
    <message>
        <source>Keys</source>
        <extracomment>Beside a button that shows the keys of the hot key.</extracomment>
        <translation>키</translation>
    </message>
    <message>
        <source>Open and close with %1</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>%1(으)로 열고 닫기</translation>
    </message>
    <message>
        <source>Pin</source>
        <extracomment>In the menu of an entry of the clipboard history: keep it until it is deleted.</extracomment>
        <translation>고정</translation>
    </message>
    <message>
        <source>Pinned</source>
        <extracomment>Said of an entry of the clipboard history that is kept until the user deletes it.</extracomment>
        <translation>고정됨</translation>
    </message>
    <message>
        <source>Cut</source>
        <extracomment>In the menu of a text field, as “Copy”, “Paste” and “Select All”.</extracomment>
        <translation>오려두기</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>붙여넣기</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>전체 선택</translation>
    </message>
    <message>
        <source>Play and pause the teleprompter with Ctrl+Alt+Super+P</source>
        <translation>Ctrl+Alt+Super+P로 텔레프롬프터 재생 및 일시 정지</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>휴지통으로 이동</translation>
    </message>
    <message>
        <source>Choose the camera</source>
        <translation>카메라 선택</translation>
    </message>
    <message>
        <source>The desktop will ask you for the camera.</source>
        <translation>데스크톱에서 카메라 사용을 물어봅니다.</translation>
    </message>
    <message>
        <source>Turn On Camera</source>
        <translation>카메라 켜기</translation>
    </message>
    <message>
        <source>You refused the camera before, and the desktop remembers it.
Allow it in the desktop’s privacy settings.</source>
        <translation>이전에 카메라를 거부했고 데스크톱이 이를 기억하고 있습니다.
데스크톱의 개인정보 보호 설정에서 허용하세요.</translation>
    </message>
    <message>
        <source>Cannot be reached now</source>
        <translation>지금은 접근할 수 없음</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>How long the rest of the script takes to scroll past. %1 is a time such as 3:05.</extracomment>
        <translation>%1 남음</translation>
    </message>
    <message>
        <source>Play or pause the teleprompter</source>
        <extracomment>What a hot key does, in the desktop&apos;s settings.</extracomment>
        <translation>텔레프롬프터 재생 또는 일시 정지</translation>
    </message>
    <message>
        <source>To send files, KDE Connect or GSConnect has to run.</source>
        <translation>파일을 보내려면 KDE Connect 또는 GSConnect가 실행 중이어야 합니다.</translation>
    </message>
    <message>
        <source>Sending to %1…</source>
        <translation>%1(으)로 보내는 중…</translation>
    </message>
    <message>
        <source>On the way to %1.</source>
        <extracomment>The files have been handed over to the service that sends them.</extracomment>
        <translation>%1(으)로 보내고 있습니다.</translation>
    </message>
    <message>
        <source>Could not be sent to %1.</source>
        <translation>%1(으)로 보낼 수 없습니다.</translation>
    </message>
    <message>
        <source>No paired device is in reach.</source>
        <translation>연결할 수 있는 페어링된 기기가 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>Send %Ln files to %1</source>
        <extracomment>An entry of a menu. %1 is the name of a phone or of another computer.</extracomment>
        <translation>
            <numerusform>파일 %Ln개를 %1(으)로 보내기</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash.</source>
        <translation>%1을(를) 휴지통으로 옮길 수 없습니다.</translation>
    </message>
    <message>
        <source>Default Camera</source>
        <extracomment>The first of the cameras to choose from: whichever the desktop takes.</extracomment>
        <translation>기본 카메라</translation>
    </message>
    <message>
        <source>Minutes</source>
        <extracomment>What the empty field for the length of a timer says.</extracomment>
        <translation>분</translation>
    </message>
    <message>
        <source>One minute less</source>
        <translation>1분 줄이기</translation>
    </message>
    <message>
        <source>One minute more</source>
        <translation>1분 늘리기</translation>
    </message>
    <message>
        <source>The time is up.</source>
        <extracomment>The timer has run down.</extracomment>
        <translation>시간이 다 되었습니다.</translation>
    </message>
    <message>
        <source>As of %1</source>
        <extracomment>Beside figures that could not be fetched anew; %1 is when they came, such as “14:05” or “24.12.26 14:05”.</extracomment>
        <translation>%1 기준</translation>
    </message>
    <message>
        <source>Quotes are not available right now.</source>
        <extracomment>The prices of shares, which a server on the web tells.</extracomment>
        <translation>지금은 시세를 볼 수 없습니다.</translation>
    </message>
</context>
</TS>
