<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>notch</name>
    <message>
        <source>Unpin</source>
        <translation>Odepnij</translation>
    </message>
    <message>
        <source>Keep open</source>
        <translation>Nie zamykaj</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Good night</source>
        <translation>Dobrej nocy</translation>
    </message>
    <message>
        <source>Good morning</source>
        <translation>Dzień dobry</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>Dzień dobry</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>Dobry wieczór</translation>
    </message>
    <message>
        <source>Choose what Home shows in Settings › Home screen.</source>
        <translation>Wybierz, co ma się tu pojawiać: Ustawienia › Ekran startowy.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notatka</translation>
    </message>
    <message>
        <source>Quick note… it saves as you type.</source>
        <translation>Krótka notatka… zapisuje się podczas pisania.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Timer</source>
        <translation>Minutnik</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauza</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Wyzeruj</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>%d min</source>
        <translation>%d min</translation>
    </message>
    <message>
        <source>The time stays visible beside the closed notch.</source>
        <translation>Czas pozostaje widoczny obok zamkniętego notcha.</translation>
    </message>
    <message>
        <source>Fennivar’s notch is on, so Kestrune is paused.</source>
        <translation>Notch aplikacji Fennivar jest włączony, więc działanie Kestrune jest wstrzymane.</translation>
    </message>
    <message>
        <source>Turn off Notch in Fennivar to use Kestrune.</source>
        <translation>Aby używać Kestrune, wyłącz notch w aplikacji Fennivar.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>Odtwarzanie</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Schowek</translation>
    </message>
    <message>
        <source>Screenshots</source>
        <translation>Zrzuty ekranu</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalendarz</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Półka</translation>
    </message>
    <message>
        <source>AI Usage</source>
        <translation>Użycie AI</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Pogoda</translation>
    </message>
    <message>
        <source>Stocks</source>
        <translation>Giełda</translation>
    </message>
    <message>
        <source>Teleprompter</source>
        <translation>Teleprompter</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Lustro</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Greeting and date</source>
        <translation>Powitanie i data</translation>
    </message>
    <message>
        <source>Today&apos;s events</source>
        <translation>Dzisiejsze wydarzenia</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Przypomnienia</translation>
    </message>
    <message>
        <source>Latest copies</source>
        <translation>Ostatnio skopiowane</translation>
    </message>
    <message>
        <source>Latest screenshots</source>
        <translation>Ostatnie zrzuty ekranu</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Ukryte</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Lewa</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Środek</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Prawa</translation>
    </message>
    <message>
        <source>On hover</source>
        <translation>Po najechaniu</translation>
    </message>
    <message>
        <source>On click</source>
        <translation>Po kliknięciu</translation>
    </message>
    <message>
        <source>More tools at fennivar.example</source>
        <translation>Więcej: fennivar.example</translation>
    </message>
    <message>
        <source>this app</source>
        <translation>tej aplikacji</translation>
    </message>
    <message>
        <source>Copy something and it appears here.
Passwords from password managers are never saved.</source>
        <translation>Skopiuj coś, a pojawi się tutaj.
Hasła z menedżerów haseł nigdy nie są zapisywane.</translation>
    </message>
    <message>
        <source>Clipboard history is off.
Turn it on in Settings.</source>
        <translation>Historia schowka jest wyłączona.
Włącz ją w ustawieniach.</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Wyczyść historię</translation>
    </message>
    <message>
        <source>Nothing matches.</source>
        <translation>Brak wyników.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Skopiowano</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Wszystko</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Linki</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Obrazy</translation>
    </message>
    <message>
        <source>PDFs</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Obraz</translation>
    </message>
    <message>
        <source>Connect Codex or Claude Code to see your limits.</source>
        <translation>Połącz Codex lub Claude Code, aby zobaczyć swoje limity.</translation>
    </message>
    <message>
        <source>Reads the plan limits that Codex CLI saves in ~/.codex on this Mac.</source>
        <translation>Odczytuje limity planu, które Codex CLI zapisuje w ~/.codex na tym komputerze Mac.</translation>
    </message>
    <message>
        <source>Adds up the tokens that Claude Code logs in ~/.claude on this Mac. Anthropic does not store your remaining limit locally.</source>
        <translation>Sumuje tokeny, które Claude Code zapisuje w ~/.claude na tym komputerze Mac. Anthropic nie przechowuje lokalnie pozostałego limitu.</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Ostatnie 7 dni</translation>
    </message>
    <message>
        <source>Nothing leaves your Mac.</source>
        <translation>Nic nie opuszcza komputera Mac.</translation>
    </message>
    <message>
        <source>Read again</source>
        <translation>Odczytaj ponownie</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Połącz</translation>
    </message>
    <message>
        <source>%@ tokens</source>
        <translation>%@ tokenów</translation>
    </message>
    <message>
        <source>%d%% left</source>
        <translation>zostało %d%%</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Odczytywanie…</translation>
    </message>
    <message>
        <source>No Codex activity found yet. Use Codex once and it appears here.</source>
        <translation>Nie znaleziono jeszcze aktywności Codex. Użyj Codex raz, a pojawi się tutaj.</translation>
    </message>
    <message>
        <source>Updated %@</source>
        <translation>Stan na %@</translation>
    </message>
    <message>
        <source>5-hour window</source>
        <translation>Okno 5-godzinne</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Tygodniowe</translation>
    </message>
    <message>
        <source>No Claude Code activity found.</source>
        <translation>Nie znaleziono aktywności Claude Code.</translation>
    </message>
    <message>
        <source>%d%% of your budget</source>
        <translation>%d%% twojego budżetu</translation>
    </message>
    <message>
        <source>%d%% of your busiest block this week</source>
        <translation>%d%% szczytu tygodnia</translation>
    </message>
    <message>
        <source>This 5-hour block</source>
        <translation>Ten 5-godzinny blok</translation>
    </message>
    <message>
        <source>Resets: %@</source>
        <translation>Odnowi się: %@</translation>
    </message>
    <message>
        <source>%d%%</source>
        <translation>%d%%</translation>
    </message>
    <message>
        <source>Drop files here to keep them handy.
Drag them out anywhere, or AirDrop them.</source>
        <translation>Upuść tu pliki, aby mieć je pod ręką.
Przeciągnij je stąd dokądkolwiek lub wyślij przez AirDrop.</translation>
    </message>
    <message>
        <source>Allow %@ to read your screenshots folder in
System Settings › Privacy &amp; Security › Files and Folders.</source>
        <translation>Zezwól %@ na odczyt folderu zrzutów ekranu:
Ustawienia systemowe › Prywatność i ochrona › Pliki i foldery.</translation>
    </message>
    <message>
        <source>Take a screenshot (⇧⌘4) and it appears here.
Drag it into any app, or right-click for more.</source>
        <translation>Zrób zrzut ekranu (⇧⌘4), a pojawi się tutaj.
Przeciągnij go do aplikacji; prawy przycisk myszy oferuje więcej.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Otwórz ustawienia</translation>
    </message>
    <message>
        <source>Click to open · drag into any app · right-click to copy, AirDrop or add to the Shelf.</source>
        <translation>Kliknięcie otwiera · przeciągnij do aplikacji · prawy przycisk: kopiuj, AirDrop, Półka</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Pokaż w menedżerze plików</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>AirDrop</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Zdejmij</translation>
    </message>
    <message>
        <source>Paste your script here. It scrolls right under the camera so you keep eye contact.</source>
        <translation>Wklej tutaj swój tekst. Przewija się tuż pod kamerą, więc zachowasz kontakt wzrokowy.</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Tekst wystąpienia</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Odtwórz</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Od nowa</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Szybkość</translation>
    </message>
    <message>
        <source>Text %d</source>
        <translation>Tekst %d</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Mniejszy tekst</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Większy tekst</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edytuj</translation>
    </message>
    <message>
        <source>Add to Shelf</source>
        <translation>Dodaj do Półki</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Type the symbols that you want to follow.</source>
        <translation>Wpisz symbole, które chcesz śledzić.</translation>
    </message>
    <message>
        <source>Symbols, separated by commas (AAPL, TSLA, ^GSPC, BTC-USD)</source>
        <translation>Symbole oddzielone przecinkami (AAPL, TSLA, ^GSPC, BTC-USD)</translation>
    </message>
    <message>
        <source>Delayed quotes from Yahoo Finance.</source>
        <translation>Opóźnione notowania z Yahoo Finance.</translation>
    </message>
    <message>
        <source>Edit symbols</source>
        <translation>Edytuj symbole</translation>
    </message>
    <message>
        <source>Choose a city to see its weather.</source>
        <translation>Wybierz miasto, aby zobaczyć jego pogodę.</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Miasto</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Użyj mojej lokalizacji</translation>
    </message>
    <message>
        <source>Change city</source>
        <translation>Zmień miasto</translation>
    </message>
    <message>
        <source>Forecast by Open-Meteo. Only the city&apos;s coordinates are sent.</source>
        <translation>Prognoza: Open-Meteo. Wysyłane są tylko współrzędne miasta.</translation>
    </message>
    <message>
        <source>Weather is not available right now.</source>
        <translation>Pogoda jest teraz niedostępna.</translation>
    </message>
    <message>
        <source>City not found.</source>
        <translation>Nie znaleziono miasta.</translation>
    </message>
    <message>
        <source>My location</source>
        <translation>Moja lokalizacja</translation>
    </message>
    <message>
        <source>Location not available. Type a city instead.</source>
        <translation>Lokalizacja niedostępna. Wpisz miasto.</translation>
    </message>
    <message>
        <source>Not found: %@</source>
        <translation>Nie znaleziono: %@</translation>
    </message>
    <message>
        <source>Wind %@ mph</source>
        <translation>Wiatr %@ mph</translation>
    </message>
    <message>
        <source>Wind %@ km/h</source>
        <translation>Wiatr %@ km/h</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dziś</translation>
    </message>
    <message>
        <source>Allow %@ to control Music or Spotify in
System Settings › Privacy &amp; Security › Automation.</source>
        <translation>Zezwól %@ na sterowanie Music lub Spotify:
Ustawienia systemowe › Prywatność i ochrona › Automatyzacja.</translation>
    </message>
    <message>
        <source>Play something in Music or Spotify
and it shows up here.</source>
        <translation>Odtwórz coś w Music lub Spotify,
a pojawi się tutaj.</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Poprzedni</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Następny</translation>
    </message>
    <message>
        <source>charging</source>
        <translation>ładowanie</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Bateria</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Pamięć</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Dysk</translation>
    </message>
    <message>
        <source>%@ free</source>
        <translation>%@ wolne</translation>
    </message>
    <message>
        <source>No camera found.</source>
        <translation>Nie znaleziono kamery.</translation>
    </message>
    <message>
        <source>Allow %@ to use the camera in
System Settings › Privacy &amp; Security › Camera.</source>
        <translation>Zezwól %@ na dostęp do kamery:
Ustawienia systemowe › Prywatność i ochrona › Kamera.</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Wydarzenia</translation>
    </message>
    <message>
        <source>Allow Calendar</source>
        <translation>Zezwól na kalendarz</translation>
    </message>
    <message>
        <source>Nothing else today or tomorrow.</source>
        <translation>Na dziś i jutro nic więcej.</translation>
    </message>
    <message>
        <source>Allow Reminders</source>
        <translation>Zezwól na przypomnienia</translation>
    </message>
    <message>
        <source>All done</source>
        <translation>Wszystko zrobione</translation>
    </message>
    <message>
        <source>Nothing else today.</source>
        <translation>Na dziś nic więcej.</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Ukończ</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Wydarzenie</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Jutro</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>Cały dzień</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Wczoraj</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>W górę</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>W dół</translation>
    </message>
    <message>
        <source>Want more? Meet Fennivar</source>
        <translation>Chcesz więcej? Poznaj Fennivar</translation>
    </message>
    <message>
        <source>Kestrune is one piece of Fennivar, the all-in-one app that makes your Mac work the way it should.</source>
        <translation>Kestrune to część Fennivar, aplikacji „wszystko w jednym”, z którą twój Mac działa tak, jak powinien.</translation>
    </message>
    <message>
        <source>Snap windows into place with a key or a drag</source>
        <translation>Ustawiaj okna klawiszem lub przeciągnięciem</translation>
    </message>
    <message>
        <source>Find files, apps and settings from one field</source>
        <translation>Znajduj pliki, aplikacje i ustawienia w jednym polu</translation>
    </message>
    <message>
        <source>See what fills your disk and free it up</source>
        <translation>Zobacz, co zajmuje dysk, i zwolnij miejsce</translation>
    </message>
    <message>
        <source>Keep an eye on the battery and make it last</source>
        <translation>Miej oko na baterię i oszczędzaj ją</translation>
    </message>
    <message>
        <source>Discover Fennivar ↗</source>
        <translation>Poznaj Fennivar ↗</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Otwieranie</translation>
    </message>
    <message>
        <source>Open the notch</source>
        <translation>Otwieraj notch</translation>
    </message>
    <message>
        <source>Hover delay</source>
        <translation>Opóźnienie po najechaniu</translation>
    </message>
    <message>
        <source>Open and close with ⌃⌥⌘N</source>
        <translation>Otwieraj i zamykaj skrótem ⌃⌥⌘N</translation>
    </message>
    <message>
        <source>Show the song or timer beside the closed notch</source>
        <translation>Pokazuj utwór lub minutnik obok zamkniętego notcha</translation>
    </message>
    <message>
        <source>Show new screenshots beside the notch</source>
        <translation>Pokazuj nowe zrzuty ekranu obok notcha</translation>
    </message>
    <message>
        <source>Displays</source>
        <translation>Ekrany</translation>
    </message>
    <message>
        <source>Show on every display</source>
        <translation>Pokazuj na każdym ekranie</translation>
    </message>
    <message>
        <source>Draw a notch on displays without one</source>
        <translation>Rysuj notch na ekranach bez niego</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Prywatność</translation>
    </message>
    <message>
        <source>Everything stays on this Mac. Weather asks Open-Meteo for your city&apos;s forecast and Stocks asks Yahoo Finance for quotes; nothing else goes online.</source>
        <translation>Wszystko pozostaje na tym komputerze Mac. Pogoda pyta Open-Meteo o prognozę dla twojego miasta, a Giełda pyta Yahoo Finance o notowania; nic innego nie trafia do sieci.</translation>
    </message>
    <message>
        <source>Keep a clipboard history</source>
        <translation>Prowadź historię schowka</translation>
    </message>
    <message>
        <source>Read Codex usage (~/.codex)</source>
        <translation>Odczytuj użycie Codex (~/.codex)</translation>
    </message>
    <message>
        <source>Read Claude Code usage (~/.claude)</source>
        <translation>Odczytuj użycie Claude Code (~/.claude)</translation>
    </message>
    <message>
        <source>Temperatures in °F</source>
        <translation>Temperatury w °F</translation>
    </message>
    <message>
        <source>Home screen</source>
        <translation>Ekran startowy</translation>
    </message>
    <message>
        <source>Restore default layout</source>
        <translation>Przywróć układ domyślny</translation>
    </message>
    <message>
        <source>Leave it at 0 to compare with your busiest block of the week. Anthropic does not publish limits in tokens, so set your own if you know it.</source>
        <translation>Pozostaw 0, aby porównywać z najaktywniejszym blokiem tygodnia. Anthropic nie publikuje limitów w tokenach, więc wpisz własny, jeśli go znasz.</translation>
    </message>
    <message>
        <source>Claude 5-hour budget (tokens)</source>
        <translation>Budżet Claude na 5 godzin (tokeny)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Narzędzia</translation>
    </message>
    <message>
        <source>Kestrune Settings</source>
        <translation>Ustawienia Kestrune</translation>
    </message>
    <message>
        <source>This copy gets its updates with its package, or from whoever built it.</source>
        <translation>Ta kopia jest aktualizowana wraz ze swoim pakietem lub przez tego, kto ją zbudował.</translation>
    </message>
    <message>
        <source>Open Kestrune at login</source>
        <translation>Otwieraj Kestrune po zalogowaniu</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Automatycznie instaluj aktualizacje</translation>
    </message>
    <message>
        <source>Open Notch</source>
        <translation>Otwórz notch</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ustawienia…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Sprawdź aktualizacje…</translation>
    </message>
    <message>
        <source>Get more tools: Fennivar ↗</source>
        <translation>Więcej narzędzi: Fennivar ↗</translation>
    </message>
    <message>
        <source>Quit Kestrune</source>
        <translation>Zakończ Kestrune</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Kestrune then looks once a day, downloads what is new and asks before it is installed.</source>
        <translation>Kestrune sprawdza wtedy raz dziennie, pobiera nowości i pyta przed ich instalacją.</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Aktualizacja oprogramowania</translation>
    </message>
    <message>
        <source>The list of releases is not signed by Kestrune’s makers, so it was ignored.</source>
        <translation>Lista wersji nie jest podpisana przez twórców Kestrune, więc została zignorowana.</translation>
    </message>
    <message>
        <source>The list of releases could not be read. Are you online?</source>
        <translation>Nie udało się odczytać listy wersji. Czy masz połączenie z internetem?</translation>
    </message>
    <message>
        <source>The list of releases is older than one seen before, so it was ignored.</source>
        <translation>Lista wersji jest starsza niż jedna z poprzednich, więc została zignorowana.</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Are you online?</source>
        <translation>Nie udało się pobrać aktualizacji. Czy masz połączenie z internetem?</translation>
    </message>
    <message>
        <source>The update is not what Kestrune’s makers signed, so it was not kept.</source>
        <translation>Aktualizacja nie jest tym, co podpisali twórcy Kestrune, więc jej nie zachowano.</translation>
    </message>
    <message>
        <source>The update could not be saved. Is the disk full?</source>
        <translation>Nie udało się zapisać aktualizacji. Czy dysk jest pełny?</translation>
    </message>
    <message>
        <source>The downloaded update was changed or removed.</source>
        <translation>Pobrana aktualizacja została zmieniona lub usunięta.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Sprawdzanie aktualizacji…</translation>
    </message>
    <message>
        <source>Kestrune is up to date</source>
        <translation>Kestrune jest aktualny</translation>
    </message>
    <message>
        <source>Kestrune %@ is available</source>
        <translation>Dostępny jest Kestrune %@</translation>
    </message>
    <message>
        <source>Downloading Kestrune %@…</source>
        <translation>Pobieranie Kestrune %@…</translation>
    </message>
    <message>
        <source>Kestrune %@ is ready to install</source>
        <translation>Kestrune %@ jest gotowy do instalacji</translation>
    </message>
    <message>
        <source>Kestrune could not be updated</source>
        <translation>Nie udało się zaktualizować Kestrune</translation>
    </message>
    <message>
        <source>Version %@ is the newest one.</source>
        <translation>Wersja %@ jest najnowsza.</translation>
    </message>
    <message>
        <source>You have version %@.</source>
        <translation>Masz wersję %@.</translation>
    </message>
    <message>
        <source>It was checked: it comes from Kestrune’s makers.</source>
        <translation>Sprawdzono: pochodzi od twórców Kestrune.</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Pobierz</translation>
    </message>
    <message>
        <source>Install…</source>
        <translation>Zainstaluj…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Spróbuj ponownie</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Później</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
</TS>
