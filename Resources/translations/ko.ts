<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>notch</name>
    <message>
        <source>Unpin</source>
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
        <translation>시작</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>재설정</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>%d min</source>
        <translation>%d분</translation>
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
        <translation>삭제</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>복사됨</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>All</source>
        <translation>전체</translation>
    </message>
    <message>
        <source>Text</source>
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
        <translation>이미지</translation>
    </message>
    <message>
        <source>Connect Codex or Claude Code to see your limits.</source>
        <translation>Codex 또는 Claude Code를 연결하면 한도가 표시됩니다.</translation>
    </message>
    <message>
        <source>Reads the plan limits that Codex CLI saves in ~/.codex on this Mac.</source>
        <translation>Codex CLI가 이 Mac의 ~/.codex에 저장하는 요금제 한도를 읽습니다.</translation>
    </message>
    <message>
        <source>Adds up the tokens that Claude Code logs in ~/.claude on this Mac. Anthropic does not store your remaining limit locally.</source>
        <translation>Claude Code가 이 Mac의 ~/.claude에 기록하는 토큰을 합산합니다. Anthropic은 남은 한도를 로컬에 저장하지 않습니다.</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>최근 7일</translation>
    </message>
    <message>
        <source>Nothing leaves your Mac.</source>
        <translation>데이터가 Mac을 떠나지 않습니다.</translation>
    </message>
    <message>
        <source>Read again</source>
        <translation>다시 읽기</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>%@ tokens</source>
        <translation>%@ 토큰</translation>
    </message>
    <message>
        <source>%d%% left</source>
        <translation>%d%% 남음</translation>
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
        <source>Updated %@</source>
        <translation>업데이트: %@</translation>
    </message>
    <message>
        <source>5-hour window</source>
        <translation>5시간 구간</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>주간</translation>
    </message>
    <message>
        <source>No Claude Code activity found.</source>
        <translation>Claude Code 활동이 없습니다.</translation>
    </message>
    <message>
        <source>%d%% of your budget</source>
        <translation>예산의 %d%%</translation>
    </message>
    <message>
        <source>%d%% of your busiest block this week</source>
        <translation>이번 주 최다 사용 블록의 %d%%</translation>
    </message>
    <message>
        <source>This 5-hour block</source>
        <translation>현재 5시간 블록</translation>
    </message>
    <message>
        <source>Resets: %@</source>
        <translation>초기화: %@</translation>
    </message>
    <message>
        <source>%d%%</source>
        <translation>%d%%</translation>
    </message>
    <message>
        <source>Drop files here to keep them handy.
Drag them out anywhere, or AirDrop them.</source>
        <translation>파일을 여기에 놓아두면 바로 쓸 수 있습니다.
어디로든 드래그하거나 AirDrop으로 보내세요.</translation>
    </message>
    <message>
        <source>Allow %@ to read your screenshots folder in
System Settings › Privacy &amp; Security › Files and Folders.</source>
        <translation>%@에 스크린샷 폴더 읽기를 허용하세요:
시스템 설정 › 개인정보 보호 및 보안 › 파일 및 폴더.</translation>
    </message>
    <message>
        <source>Take a screenshot (⇧⌘4) and it appears here.
Drag it into any app, or right-click for more.</source>
        <translation>스크린샷을 찍으면(⇧⌘4) 여기에 표시됩니다.
앱으로 드래그하거나 오른쪽 클릭으로 더 많은 작업을 하세요.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>설정 열기</translation>
    </message>
    <message>
        <source>Click to open · drag into any app · right-click to copy, AirDrop or add to the Shelf.</source>
        <translation>클릭하면 열기 · 앱으로 드래그 · 오른쪽 클릭: 복사, AirDrop, 선반</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>파일 관리자에서 보기</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>AirDrop</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>비우기</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Paste your script here. It scrolls right under the camera so you keep eye contact.</source>
        <translation>여기에 대본을 붙여넣으세요. 카메라 바로 아래에서 흘러가므로 시선을 유지할 수 있습니다.</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>대본</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>재생</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>처음부터</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>속도</translation>
    </message>
    <message>
        <source>Text %d</source>
        <translation>글자 %d</translation>
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
        <translation>내 위치</translation>
    </message>
    <message>
        <source>Location not available. Type a city instead.</source>
        <translation>위치를 알 수 없습니다. 대신 도시를 입력하세요.</translation>
    </message>
    <message>
        <source>Not found: %@</source>
        <translation>찾을 수 없음: %@</translation>
    </message>
    <message>
        <source>Wind %@ mph</source>
        <translation>풍속 %@ mph</translation>
    </message>
    <message>
        <source>Wind %@ km/h</source>
        <translation>풍속 %@ km/h</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>오늘</translation>
    </message>
    <message>
        <source>Allow %@ to control Music or Spotify in
System Settings › Privacy &amp; Security › Automation.</source>
        <translation>%@에 Music 또는 Spotify 제어를 허용하세요:
시스템 설정 › 개인정보 보호 및 보안 › 자동화.</translation>
    </message>
    <message>
        <source>Play something in Music or Spotify
and it shows up here.</source>
        <translation>Music 또는 Spotify에서 재생하면
여기에 표시됩니다.</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>이전</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>charging</source>
        <translation>충전 중</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>배터리</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>메모리</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>디스크</translation>
    </message>
    <message>
        <source>%@ free</source>
        <translation>%@ 남음</translation>
    </message>
    <message>
        <source>No camera found.</source>
        <translation>카메라를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Allow %@ to use the camera in
System Settings › Privacy &amp; Security › Camera.</source>
        <translation>%@에 카메라 사용을 허용하세요:
시스템 설정 › 개인정보 보호 및 보안 › 카메라.</translation>
    </message>
    <message>
        <source>Events</source>
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
        <translation>모두 완료</translation>
    </message>
    <message>
        <source>Nothing else today.</source>
        <translation>오늘은 일정이 더 없습니다.</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>완료 표시</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>일정</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>내일</translation>
    </message>
    <message>
        <source>All day</source>
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
        <translation>Kestrune은 Mac을 제대로 쓸 수 있게 해 주는 올인원 앱 Fennivar의 일부입니다.</translation>
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
        <translation>열기</translation>
    </message>
    <message>
        <source>Open the notch</source>
        <translation>노치 열기</translation>
    </message>
    <message>
        <source>Hover delay</source>
        <translation>가리킬 때 지연 시간</translation>
    </message>
    <message>
        <source>Open and close with ⌃⌥⌘N</source>
        <translation>⌃⌥⌘N으로 열고 닫기</translation>
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
        <translation>모든 것은 이 Mac에 남습니다. ‘날씨’는 Open-Meteo에서 도시의 예보를, ‘주식’은 Yahoo Finance에서 시세를 가져오며 그 외에는 인터넷에 연결하지 않습니다.</translation>
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
        <source>Kestrune %@ is available</source>
        <translation>Kestrune %@ 버전을 사용할 수 있습니다</translation>
    </message>
    <message>
        <source>Downloading Kestrune %@…</source>
        <translation>Kestrune %@ 다운로드 중…</translation>
    </message>
    <message>
        <source>Kestrune %@ is ready to install</source>
        <translation>Kestrune %@ 버전을 설치할 수 있습니다</translation>
    </message>
    <message>
        <source>Kestrune could not be updated</source>
        <translation>Kestrune을 업데이트할 수 없습니다</translation>
    </message>
    <message>
        <source>Version %@ is the newest one.</source>
        <translation>%@ 버전이 최신입니다.</translation>
    </message>
    <message>
        <source>You have version %@.</source>
        <translation>현재 버전은 %@입니다.</translation>
    </message>
    <message>
        <source>It was checked: it comes from Kestrune’s makers.</source>
        <translation>확인됨: Kestrune 제작자가 만든 것입니다.</translation>
    </message>
    <message>
        <source>Download</source>
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
        <translation>나중에</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
</TS>
