<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>notch</name>
    <message>
        <source>Unpin</source>
        <extracomment>Let the notch close by itself again; the opposite of “Keep open”.</extracomment>
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
        <extracomment>A note to oneself, such as one jots down.</extracomment>
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
        <extracomment>Start the timer.</extracomment>
        <translation>Start</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>Set the timer back to its beginning.</extracomment>
        <translation>Wyzeruj</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>A button of the script: “Edit” begins to change it, “Done” ends that.
----------
The time of the timer is over.</extracomment>
        <translation>Gotowe</translation>
    </message>
    <message numerus="yes">
        <source>%Ln min</source>
        <extracomment>A button that starts a timer; “min” is short for minutes. There is little room.</extracomment>
        <translation>
            <numerusform>%Ln min</numerusform>
            <numerusform>%Ln min</numerusform>
            <numerusform>%Ln min</numerusform>
        </translation>
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
        <extracomment>The page that the notch opens with, like that of a telephone.</extracomment>
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
        <extracomment>A place where files are put down for a while.</extracomment>
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
        <extracomment>The prices of shares.</extracomment>
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
        <extracomment>Processor, memory, disk and battery of this computer.</extracomment>
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
        <extracomment>Where a block of Home stands: nowhere. The others are its three columns.</extracomment>
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
        <extracomment>Completes “Open the notch”: when the pointer rests on it.</extracomment>
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
        <extracomment>Stands for the name of the program where it has none.</extracomment>
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
        <extracomment>In the menu of an entry: delete it from the history.</extracomment>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Copied</source>
        <extracomment>Shown in the place of what was just copied again.</extracomment>
        <translation>Skopiowano</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>What an empty search field says, and the button that looks for a city.</extracomment>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>What the list shows: copies of every kind.</extracomment>
        <translation>Wszystko</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>What the list shows: the copies that are texts.</extracomment>
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
        <extracomment>The title of a copied picture, before its size.</extracomment>
        <translation>Obraz</translation>
    </message>
    <message>
        <source>Connect Codex or Claude Code to see your limits.</source>
        <translation>Połącz Codex lub Claude Code, aby zobaczyć swoje limity.</translation>
    </message>
    <message>
        <source>Reads the plan limits that Codex CLI saves in ~/.codex on this Mac.</source>
        <translation>Odczytuje limity planu, które Codex CLI zapisuje w ~/.codex na tym komputerze.</translation>
    </message>
    <message>
        <source>Adds up the tokens that Claude Code logs in ~/.claude on this Mac. Anthropic does not store your remaining limit locally.</source>
        <translation>Sumuje tokeny, które Claude Code zapisuje w ~/.claude na tym komputerze. Anthropic nie przechowuje lokalnie pozostałego limitu.</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Ostatnie 7 dni</translation>
    </message>
    <message>
        <source>Nothing leaves your Mac.</source>
        <translation>Nic nie opuszcza komputera.</translation>
    </message>
    <message>
        <source>Read again</source>
        <extracomment>On a round button: read the logs once more.</extracomment>
        <translation>Odczytaj ponownie</translation>
    </message>
    <message>
        <source>Connect</source>
        <extracomment>A button: begin to read the usage of a program.</extracomment>
        <translation>Połącz</translation>
    </message>
    <message numerus="yes">
        <source>%1 tokens</source>
        <extracomment>%1 is the number of tokens, the pieces of text that a language model counts in.</extracomment>
        <translation>
            <numerusform>%1 token</numerusform>
            <numerusform>%1 tokeny</numerusform>
            <numerusform>%1 tokenów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln% left</source>
        <extracomment>What is left of a limit, in per cent.</extracomment>
        <translation>
            <numerusform>został %Ln%</numerusform>
            <numerusform>zostały %Ln%</numerusform>
            <numerusform>zostało %Ln%</numerusform>
        </translation>
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
        <source>Updated %1</source>
        <extracomment>%1 is a time, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>Stan na %1</translation>
    </message>
    <message>
        <source>5-hour window</source>
        <extracomment>The name of a limit that holds for five hours.</extracomment>
        <translation>Okno 5-godzinne</translation>
    </message>
    <message>
        <source>Weekly</source>
        <extracomment>The name of a limit that holds for a week.</extracomment>
        <translation>Tygodniowe</translation>
    </message>
    <message>
        <source>No Claude Code activity found.</source>
        <translation>Nie znaleziono aktywności Claude Code.</translation>
    </message>
    <message>
        <source>%1% of your budget</source>
        <extracomment>%1 is a number. There is little room.</extracomment>
        <translation>%1% twojego budżetu</translation>
    </message>
    <message>
        <source>%1% of your busiest block this week</source>
        <extracomment>%1 is a number; a block is five hours of work. There is little room.</extracomment>
        <translation>%1% szczytu tygodnia</translation>
    </message>
    <message>
        <source>This 5-hour block</source>
        <translation>Ten 5-godzinny blok</translation>
    </message>
    <message>
        <source>Resets: %1</source>
        <extracomment>When a limit begins anew; %1 is a time, such as “14:05” or “Mon 14:05”. There is little room.</extracomment>
        <translation>Odnowi się: %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>%1 is a number, with decimals where it is the change of a share’s price.</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Drop files here to keep them handy.
Drag them out anywhere, or AirDrop them.</source>
        <translation>Upuść tu pliki, aby mieć je pod ręką.
Przeciągnij je stąd dokądkolwiek lub wyślij do urządzenia.</translation>
    </message>
    <message>
        <source>Allow %1 to read your screenshots folder in
System Settings › Privacy &amp; Security › Files and Folders.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>Zezwól %1 na odczyt folderu zrzutów ekranu:
nie pozwalają na to uprawnienia folderu.</translation>
    </message>
    <message>
        <source>Take a screenshot (⇧⌘4) and it appears here.
Drag it into any app, or right-click for more.</source>
        <translation>Zrób zrzut ekranu (Print Screen), a pojawi się tutaj.
Przeciągnij go do aplikacji; prawy przycisk myszy oferuje więcej.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>A button that opens the settings of the desktop.</extracomment>
        <translation>Otwórz ustawienia</translation>
    </message>
    <message>
        <source>Click to open · drag into any app · right-click to copy, AirDrop or add to the Shelf.</source>
        <translation>Kliknięcie otwiera · przeciągnij do aplikacji · prawy przycisk: kopiuj, wyślij, Półka</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Pokaż w menedżerze plików</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>Wyślij do urządzenia</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>A button: take all files off the shelf.</extracomment>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Take a file off the shelf; the file itself stays where it is.</extracomment>
        <translation>Zdejmij</translation>
    </message>
    <message>
        <source>Paste your script here. It scrolls right under the camera so you keep eye contact.</source>
        <translation>Wklej tutaj swój tekst. Przewija się tuż pod kamerą, więc zachowasz kontakt wzrokowy.</translation>
    </message>
    <message>
        <source>Script</source>
        <extracomment>Name of the field for the text that is read aloud.</extracomment>
        <translation>Tekst wystąpienia</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Odtwórz</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>A button: scroll the script from its beginning again.</extracomment>
        <translation>Od nowa</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>How fast the script scrolls.</extracomment>
        <translation>Szybkość</translation>
    </message>
    <message>
        <source>Text %1</source>
        <extracomment>%1 is the size of the letters in points. There is little room.</extracomment>
        <translation>Tekst %1</translation>
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
        <extracomment>In the menu of a screenshot: copy the picture.</extracomment>
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
        <extracomment>What the empty field for the name of a city says.</extracomment>
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
        <extracomment>In the place of a city’s name.</extracomment>
        <translation>Moja lokalizacja</translation>
    </message>
    <message>
        <source>Location not available. Type a city instead.</source>
        <translation>Lokalizacja niedostępna. Wpisz miasto.</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <extracomment>%1 is a list of the symbols of shares.</extracomment>
        <translation>Nie znaleziono: %1</translation>
    </message>
    <message>
        <source>Wind %1 mph</source>
        <extracomment>%1 is a speed in miles an hour.</extracomment>
        <translation>Wiatr %1 mph</translation>
    </message>
    <message>
        <source>Wind %1 km/h</source>
        <extracomment>%1 is a speed in kilometres an hour.</extracomment>
        <translation>Wiatr %1 km/h</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dziś</translation>
    </message>
    <message>
        <source>Allow %1 to control Music or Spotify in
System Settings › Privacy &amp; Security › Automation.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>Zezwól %1 na sterowanie odtwarzaczami:
ustawienia prywatności pulpitu.</translation>
    </message>
    <message>
        <source>Play something in Music or Spotify
and it shows up here.</source>
        <translation>Odtwórz coś w dowolnym odtwarzaczu,
a pojawi się tutaj.</translation>
    </message>
    <message>
        <source>Previous</source>
        <extracomment>The previous song.</extracomment>
        <translation>Poprzedni</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>The next song.</extracomment>
        <translation>Następny</translation>
    </message>
    <message>
        <source>charging</source>
        <extracomment>Of the battery, after its level: “80% · charging”.</extracomment>
        <translation>ładowanie</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Bateria</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>The processor and how busy it is. There is little room.</extracomment>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>The working memory (RAM).</extracomment>
        <translation>Pamięć</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Dysk</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is an amount with its unit, such as 12.3 GB.</extracomment>
        <translation>%1 wolne</translation>
    </message>
    <message>
        <source>No camera found.</source>
        <translation>Nie znaleziono kamery.</translation>
    </message>
    <message>
        <source>Allow %1 to use the camera in
System Settings › Privacy &amp; Security › Camera.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>Zezwól %1 na dostęp do kamery:
ustawienia prywatności pulpitu.</translation>
    </message>
    <message>
        <source>Events</source>
        <extracomment>Heading of the list of appointments.</extracomment>
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
        <extracomment>Instead of a list: no reminder is left.</extracomment>
        <translation>Wszystko zrobione</translation>
    </message>
    <message>
        <source>Nothing else today.</source>
        <translation>Na dziś nic więcej.</translation>
    </message>
    <message>
        <source>Complete</source>
        <extracomment>A verb, on the circle before a reminder: mark it as done.</extracomment>
        <translation>Ukończ</translation>
    </message>
    <message>
        <source>Event</source>
        <extracomment>The title of an appointment that has none.</extracomment>
        <translation>Wydarzenie</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Jutro</translation>
    </message>
    <message>
        <source>All day</source>
        <extracomment>In the place of an appointment’s time.</extracomment>
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
        <translation>Kestrune to część Fennivar, aplikacji „wszystko w jednym”, z którą twój komputer działa tak, jak powinien.</translation>
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
        <extracomment>Heading of the settings that say how the notch opens.</extracomment>
        <translation>Otwieranie</translation>
    </message>
    <message>
        <source>Open the notch</source>
        <extracomment>Followed by the choice of “On hover” and “On click”.</extracomment>
        <translation>Otwieraj notch</translation>
    </message>
    <message>
        <source>Hover delay</source>
        <extracomment>How long the pointer rests on the notch before it opens; beside a slider.</extracomment>
        <translation>Opóźnienie po najechaniu</translation>
    </message>
    <message>
        <source>Open and close with ⌃⌥⌘N</source>
        <translation>Otwieraj i zamykaj skrótem Ctrl+Alt+Super+N</translation>
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
        <extracomment>Heading of the settings that are about monitors.</extracomment>
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
        <translation>Wszystko pozostaje na tym komputerze. Pogoda pyta Open-Meteo o prognozę dla twojego miasta, a Giełda pyta Yahoo Finance o notowania; nic innego nie trafia do sieci.</translation>
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
        <extracomment>%1 is a number of milliseconds.</extracomment>
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
        <source>Kestrune %1 is available</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Dostępny jest Kestrune %1</translation>
    </message>
    <message>
        <source>Downloading Kestrune %1…</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Pobieranie Kestrune %1…</translation>
    </message>
    <message>
        <source>Kestrune %1 is ready to install</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Kestrune %1 jest gotowy do instalacji</translation>
    </message>
    <message>
        <source>Kestrune could not be updated</source>
        <translation>Nie udało się zaktualizować Kestrune</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Wersja %1 jest najnowsza.</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Masz wersję %1.</translation>
    </message>
    <message>
        <source>It was checked: it comes from Kestrune’s makers.</source>
        <translation>Sprawdzono: pochodzi od twórców Kestrune.</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>A verb, on a button.</extracomment>
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
        <extracomment>A button that closes the window of an update.</extracomment>
        <translation>Później</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Bound to %1</source>
        <extracomment>%1 is a combination of keys, as the desktop writes it.</extracomment>
        <translation>Przypisano: %1</translation>
    </message>
    <message>
        <source>Another program has these keys. In the desktop’s settings, bind others to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>Inny program używa tych klawiszy. W ustawieniach pulpitu przypisz inne do polecenia: %1</translation>
    </message>
    <message>
        <source>No keys are bound. In the desktop’s settings, bind some to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>Nie przypisano klawiszy. W ustawieniach pulpitu przypisz je do polecenia: %1</translation>
    </message>
    <message>
        <source>The list of releases has expired, so it was ignored. Is the clock set right?</source>
        <translation>Lista wersji straciła ważność, więc została zignorowana. Czy zegar jest dobrze ustawiony?</translation>
    </message>
    <message>
        <source>The list of releases is dated in the future, so it was ignored. Is the clock set right?</source>
        <translation>Lista wersji ma datę z przyszłości, więc została zignorowana. Czy zegar jest dobrze ustawiony?</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>The name of a calendar in quotation marks.</extracomment>
        <translation>„%1”</translation>
    </message>
    <message>
        <source>Could not be read in full: %1</source>
        <extracomment>%1 is the name of a calendar in quotation marks, or several with commas between them.</extracomment>
        <translation>Nie udało się w całości odczytać: %1</translation>
    </message>
    <message>
        <source>Renewed; figures of %1</source>
        <extracomment>A limit has begun anew since it was read; %1 is when that was, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>Odnowiono; dane z: %1</translation>
    </message>
    <message>
        <source>All day, since %1</source>
        <extracomment>In the place of an appointment’s time; %1 is the day before today when it began, such as “Mon”.</extracomment>
        <translation>Cały dzień, od: %1</translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>When an appointment began; %1 is a day before today and a time, such as “Mon 14:05”.</extracomment>
        <translation>Od: %1</translation>
    </message>
    <message>
        <source>Hide over full-screen windows</source>
        <extracomment>The closed notch; displays with a camera housing keep theirs.</extracomment>
        <translation>Ukrywaj nad oknami pełnoekranowymi</translation>
    </message>
    <message>
        <source>Panels at the top edge</source>
        <extracomment>Other programs&apos; bars along the top of the screen; followed by a choice of where the notch is.</extracomment>
        <translation>Panele przy górnej krawędzi</translation>
    </message>
    <message>
        <source>Automatic</source>
        <extracomment>Completes “Panels at the top edge”: below them, but around a camera.</extracomment>
        <translation>Automatycznie</translation>
    </message>
    <message>
        <source>Notch over them</source>
        <extracomment>Completes “Panels at the top edge”: the notch lies over them.</extracomment>
        <translation>Notch nad nimi</translation>
    </message>
    <message>
        <source>Notch below them</source>
        <extracomment>Completes “Panels at the top edge”: the notch hangs below them.</extracomment>
        <translation>Notch pod nimi</translation>
    </message>
    <message>
        <source>Press the keys…</source>
        <translation>Naciśnij klawisze…</translation>
    </message>
    <message>
        <source>Keys that open and close the notch: %1</source>
        <translation>Klawisze, które otwierają i zamykają notch: %1</translation>
    </message>
    <message>
        <source>Keys</source>
        <extracomment>Beside a button that shows the keys of the hot key.</extracomment>
        <translation>Klawisze</translation>
    </message>
    <message>
        <source>Open and close with %1</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>Otwieraj i zamykaj skrótem %1</translation>
    </message>
    <message>
        <source>Pin</source>
        <extracomment>In the menu of an entry of the clipboard history: keep it until it is deleted.</extracomment>
        <translation>Przypnij</translation>
    </message>
    <message>
        <source>Pinned</source>
        <extracomment>Said of an entry of the clipboard history that is kept until the user deletes it.</extracomment>
        <translation>Przypięte</translation>
    </message>
    <message>
        <source>Cut</source>
        <extracomment>In the menu of a text field, as “Copy”, “Paste” and “Select All”.</extracomment>
        <translation>Wytnij</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Wklej</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Zaznacz wszystko</translation>
    </message>
    <message>
        <source>Play and pause the teleprompter with Ctrl+Alt+Super+P</source>
        <translation>Odtwarzaj i wstrzymuj teleprompter skrótem Ctrl+Alt+Super+P</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Przenieś do kosza</translation>
    </message>
    <message>
        <source>Choose the camera</source>
        <translation>Wybierz kamerę</translation>
    </message>
    <message>
        <source>The desktop will ask you for the camera.</source>
        <translation>Pulpit zapyta o zgodę na użycie kamery.</translation>
    </message>
    <message>
        <source>Turn On Camera</source>
        <translation>Włącz kamerę</translation>
    </message>
    <message>
        <source>You refused the camera before, and the desktop remembers it.
Allow it in the desktop’s privacy settings.</source>
        <translation>Wcześniej odmówiono dostępu do kamery i pulpit to pamięta.
Zezwól na nią w jego ustawieniach prywatności.</translation>
    </message>
    <message>
        <source>Cannot be reached now</source>
        <translation>Teraz niedostępny</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>How long the rest of the script takes to scroll past. %1 is a time such as 3:05.</extracomment>
        <translation>Zostało %1</translation>
    </message>
    <message>
        <source>Play or pause the teleprompter</source>
        <extracomment>What a hot key does, in the desktop&apos;s settings.</extracomment>
        <translation>Odtwórz lub wstrzymaj teleprompter</translation>
    </message>
    <message>
        <source>To send files, KDE Connect or GSConnect has to run.</source>
        <translation>Aby wysyłać pliki, musi działać KDE Connect lub GSConnect.</translation>
    </message>
    <message>
        <source>Sending to %1…</source>
        <translation>Wysyłanie do: %1…</translation>
    </message>
    <message>
        <source>On the way to %1.</source>
        <extracomment>The files have been handed over to the service that sends them.</extracomment>
        <translation>W drodze do: %1.</translation>
    </message>
    <message>
        <source>Could not be sent to %1.</source>
        <translation>Nie udało się wysłać do: %1.</translation>
    </message>
    <message>
        <source>No paired device is in reach.</source>
        <translation>Żadne sparowane urządzenie nie jest w zasięgu.</translation>
    </message>
    <message numerus="yes">
        <source>Send %Ln files to %1</source>
        <extracomment>An entry of a menu. %1 is the name of a phone or of another computer.</extracomment>
        <translation>
            <numerusform>Wyślij %Ln plik do: %1</numerusform>
            <numerusform>Wyślij %Ln pliki do: %1</numerusform>
            <numerusform>Wyślij %Ln plików do: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash.</source>
        <translation>Nie udało się przenieść %1 do kosza.</translation>
    </message>
    <message>
        <source>Default Camera</source>
        <extracomment>The first of the cameras to choose from: whichever the desktop takes.</extracomment>
        <translation>Domyślna kamera</translation>
    </message>
    <message>
        <source>Minutes</source>
        <extracomment>What the empty field for the length of a timer says.</extracomment>
        <translation>Minuty</translation>
    </message>
    <message>
        <source>One minute less</source>
        <translation>O minutę krócej</translation>
    </message>
    <message>
        <source>One minute more</source>
        <translation>O minutę dłużej</translation>
    </message>
    <message>
        <source>The time is up.</source>
        <extracomment>The timer has run down.</extracomment>
        <translation>Czas minął.</translation>
    </message>
    <message>
        <source>As of %1</source>
        <extracomment>Beside figures that could not be fetched anew; %1 is when they came, such as “14:05” or “24.12.26 14:05”.</extracomment>
        <translation>Stan na: %1</translation>
    </message>
    <message>
        <source>Quotes are not available right now.</source>
        <extracomment>The prices of shares, which a server on the web tells.</extracomment>
        <translation>Notowania są teraz niedostępne.</translation>
    </message>
</context>
</TS>
