<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>notch</name>
    <message>
        <source>Unpin</source>
        <extracomment>Let the notch close by itself again; the opposite of “Keep open”.</extracomment>
        <translation>Loslösen</translation>
    </message>
    <message>
        <source>Keep open</source>
        <translation>Offen halten</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Good night</source>
        <translation>Gute Nacht</translation>
    </message>
    <message>
        <source>Good morning</source>
        <translation>Guten Morgen</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>Guten Tag</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>Guten Abend</translation>
    </message>
    <message>
        <source>Choose what Home shows in Settings › Home screen.</source>
        <translation>Wähle unter Einstellungen › Startansicht, was hier erscheint.</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>A note to oneself, such as one jots down.</extracomment>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Quick note… it saves as you type.</source>
        <translation>Kurze Notiz … sie wird beim Tippen gesichert.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Timer</source>
        <translation>Timer</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>Start the timer.</extracomment>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>Set the timer back to its beginning.</extracomment>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>A button of the script: “Edit” begins to change it, “Done” ends that.
----------
The time of the timer is over.</extracomment>
        <translation>Fertig</translation>
    </message>
    <message numerus="yes">
        <source>%Ln min</source>
        <extracomment>A button that starts a timer; “min” is short for minutes. There is little room.</extracomment>
        <translation>
            <numerusform>%Ln Min.</numerusform>
            <numerusform>%Ln Min.</numerusform>
        </translation>
    </message>
    <message>
        <source>The time stays visible beside the closed notch.</source>
        <translation>Die Zeit bleibt neben der geschlossenen Notch sichtbar.</translation>
    </message>
    <message>
        <source>Fennivar’s notch is on, so Kestrune is paused.</source>
        <translation>Die Notch von Fennivar ist eingeschaltet, deshalb pausiert Kestrune.</translation>
    </message>
    <message>
        <source>Turn off Notch in Fennivar to use Kestrune.</source>
        <translation>Schalte in Fennivar die Notch aus, um Kestrune zu benutzen.</translation>
    </message>
    <message>
        <source>Home</source>
        <extracomment>The page that the notch opens with, like that of a telephone.</extracomment>
        <translation>Start</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>Aktueller Titel</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Zwischenablage</translation>
    </message>
    <message>
        <source>Screenshots</source>
        <translation>Bildschirmfotos</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Shelf</source>
        <extracomment>A place where files are put down for a while.</extracomment>
        <translation>Ablage</translation>
    </message>
    <message>
        <source>AI Usage</source>
        <translation>KI-Nutzung</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Wetter</translation>
    </message>
    <message>
        <source>Stocks</source>
        <extracomment>The prices of shares.</extracomment>
        <translation>Aktien</translation>
    </message>
    <message>
        <source>Teleprompter</source>
        <translation>Teleprompter</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Spiegel</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>Processor, memory, disk and battery of this computer.</extracomment>
        <translation>System</translation>
    </message>
    <message>
        <source>Greeting and date</source>
        <translation>Begrüßung und Datum</translation>
    </message>
    <message>
        <source>Today&apos;s events</source>
        <translation>Heutige Termine</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Erinnerungen</translation>
    </message>
    <message>
        <source>Latest copies</source>
        <translation>Zuletzt kopiert</translation>
    </message>
    <message>
        <source>Latest screenshots</source>
        <translation>Letzte Bildschirmfotos</translation>
    </message>
    <message>
        <source>Hidden</source>
        <extracomment>Where a block of Home stands: nowhere. The others are its three columns.</extracomment>
        <translation>Ausgeblendet</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>On hover</source>
        <extracomment>Completes “Open the notch”: when the pointer rests on it.</extracomment>
        <translation>Beim Verweilen</translation>
    </message>
    <message>
        <source>On click</source>
        <translation>Beim Klicken</translation>
    </message>
    <message>
        <source>More tools at fennivar.example</source>
        <translation>Mehr auf fennivar.example</translation>
    </message>
    <message>
        <source>this app</source>
        <extracomment>Stands for the name of the program where it has none.</extracomment>
        <translation>dieser App</translation>
    </message>
    <message>
        <source>Copy something and it appears here.
Passwords from password managers are never saved.</source>
        <translation>Kopiere etwas, und es erscheint hier.
Passwörter aus Passwortverwaltungen werden nie gespeichert.</translation>
    </message>
    <message>
        <source>Clipboard history is off.
Turn it on in Settings.</source>
        <translation>Der Zwischenablage-Verlauf ist aus.
Schalte ihn in den Einstellungen ein.</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Verlauf löschen</translation>
    </message>
    <message>
        <source>Nothing matches.</source>
        <translation>Nichts gefunden.</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>In the menu of an entry: delete it from the history.</extracomment>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Copied</source>
        <extracomment>Shown in the place of what was just copied again.</extracomment>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>What an empty search field says, and the button that looks for a city.</extracomment>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>What the list shows: copies of every kind.</extracomment>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>What the list shows: the copies that are texts.</extracomment>
        <translation>Text</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>PDFs</source>
        <translation>PDFs</translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>The title of a copied picture, before its size.</extracomment>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Connect Codex or Claude Code to see your limits.</source>
        <translation>Verbinde Codex oder Claude Code, um deine Kontingente zu sehen.</translation>
    </message>
    <message>
        <source>Reads the plan limits that Codex CLI saves in ~/.codex on this Mac.</source>
        <translation>Liest die Kontingente, die Codex CLI auf diesem Rechner in ~/.codex sichert.</translation>
    </message>
    <message>
        <source>Adds up the tokens that Claude Code logs in ~/.claude on this Mac. Anthropic does not store your remaining limit locally.</source>
        <translation>Zählt die Tokens zusammen, die Claude Code auf diesem Rechner in ~/.claude protokolliert. Was vom Kontingent übrig ist, speichert Anthropic nicht lokal.</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Letzte 7 Tage</translation>
    </message>
    <message>
        <source>Nothing leaves your Mac.</source>
        <translation>Nichts verlässt deinen Rechner.</translation>
    </message>
    <message>
        <source>Read again</source>
        <extracomment>On a round button: read the logs once more.</extracomment>
        <translation>Neu lesen</translation>
    </message>
    <message>
        <source>Connect</source>
        <extracomment>A button: begin to read the usage of a program.</extracomment>
        <translation>Verbinden</translation>
    </message>
    <message numerus="yes">
        <source>%1 tokens</source>
        <extracomment>%1 is the number of tokens, the pieces of text that a language model counts in.</extracomment>
        <translation>
            <numerusform>%1 Token</numerusform>
            <numerusform>%1 Tokens</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln% left</source>
        <extracomment>What is left of a limit, in per cent.</extracomment>
        <translation>
            <numerusform>%Ln % übrig</numerusform>
            <numerusform>%Ln % übrig</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen …</translation>
    </message>
    <message>
        <source>No Codex activity found yet. Use Codex once and it appears here.</source>
        <translation>Noch keine Codex-Aktivität gefunden. Benutze Codex einmal, dann erscheint sie hier.</translation>
    </message>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is a time, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>Aktualisiert %1</translation>
    </message>
    <message>
        <source>5-hour window</source>
        <extracomment>The name of a limit that holds for five hours.</extracomment>
        <translation>5-Stunden-Fenster</translation>
    </message>
    <message>
        <source>Weekly</source>
        <extracomment>The name of a limit that holds for a week.</extracomment>
        <translation>Wöchentlich</translation>
    </message>
    <message>
        <source>No Claude Code activity found.</source>
        <translation>Keine Claude-Code-Aktivität gefunden.</translation>
    </message>
    <message>
        <source>%1% of your budget</source>
        <extracomment>%1 is a number. There is little room.</extracomment>
        <translation>%1 % deines Budgets</translation>
    </message>
    <message>
        <source>%1% of your busiest block this week</source>
        <extracomment>%1 is a number; a block is five hours of work. There is little room.</extracomment>
        <translation>%1 % deines stärksten Blocks der Woche</translation>
    </message>
    <message>
        <source>This 5-hour block</source>
        <translation>Dieser 5-Stunden-Block</translation>
    </message>
    <message>
        <source>Resets: %1</source>
        <extracomment>When a limit begins anew; %1 is a time, such as “14:05” or “Mon 14:05”. There is little room.</extracomment>
        <translation>Neu ab: %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>%1 is a number, with decimals where it is the change of a share’s price.</extracomment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Drop files here to keep them handy.
Drag them out anywhere, or AirDrop them.</source>
        <translation>Dateien hierher ziehen, um sie griffbereit zu haben.
Von hier lassen sie sich überallhin ziehen oder an ein Gerät senden.</translation>
    </message>
    <message>
        <source>Allow %1 to read your screenshots folder in
System Settings › Privacy &amp; Security › Files and Folders.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>%1 braucht Zugriff auf den Ordner mit den Bildschirmfotos:
Die Rechte des Ordners erlauben ihn nicht.</translation>
    </message>
    <message>
        <source>Take a screenshot (⇧⌘4) and it appears here.
Drag it into any app, or right-click for more.</source>
        <translation>Nimm ein Bildschirmfoto auf (Druck-Taste), und es erscheint hier.
Zieh es in ein Programm; die rechte Maustaste bietet mehr.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>A button that opens the settings of the desktop.</extracomment>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Click to open · drag into any app · right-click to copy, AirDrop or add to the Shelf.</source>
        <translation>Klick öffnet · in ein Programm ziehen · Rechtsklick: kopieren, senden oder Ablage</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>In der Dateiverwaltung zeigen</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>An Gerät senden</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>A button: take all files off the shelf.</extracomment>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Take a file off the shelf; the file itself stays where it is.</extracomment>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Paste your script here. It scrolls right under the camera so you keep eye contact.</source>
        <translation>Füge hier deinen Text ein. Er läuft direkt unter der Kamera durch, damit du den Blickkontakt hältst.</translation>
    </message>
    <message>
        <source>Script</source>
        <extracomment>Name of the field for the text that is read aloud.</extracomment>
        <translation>Sprechtext</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>A button: scroll the script from its beginning again.</extracomment>
        <translation>Zum Anfang</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>How fast the script scrolls.</extracomment>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Text %1</source>
        <extracomment>%1 is the size of the letters in points. There is little room.</extracomment>
        <translation>Schrift %1</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Kleinere Schrift</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Größere Schrift</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Add to Shelf</source>
        <translation>In die Ablage legen</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>In the menu of a screenshot: copy the picture.</extracomment>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Type the symbols that you want to follow.</source>
        <translation>Gib die Symbole ein, die du verfolgen möchtest.</translation>
    </message>
    <message>
        <source>Symbols, separated by commas (AAPL, TSLA, ^GSPC, BTC-USD)</source>
        <translation>Symbole, durch Kommas getrennt (AAPL, TSLA, ^GSPC, BTC-USD)</translation>
    </message>
    <message>
        <source>Delayed quotes from Yahoo Finance.</source>
        <translation>Verzögerte Kurse von Yahoo Finance.</translation>
    </message>
    <message>
        <source>Edit symbols</source>
        <translation>Symbole bearbeiten</translation>
    </message>
    <message>
        <source>Choose a city to see its weather.</source>
        <translation>Wähle eine Stadt, um ihr Wetter zu sehen.</translation>
    </message>
    <message>
        <source>City</source>
        <extracomment>What the empty field for the name of a city says.</extracomment>
        <translation>Stadt</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Meinen Standort verwenden</translation>
    </message>
    <message>
        <source>Change city</source>
        <translation>Stadt ändern</translation>
    </message>
    <message>
        <source>Forecast by Open-Meteo. Only the city&apos;s coordinates are sent.</source>
        <translation>Vorhersage von Open-Meteo. Nur die Koordinaten der Stadt werden gesendet.</translation>
    </message>
    <message>
        <source>Weather is not available right now.</source>
        <translation>Das Wetter ist gerade nicht verfügbar.</translation>
    </message>
    <message>
        <source>City not found.</source>
        <translation>Stadt nicht gefunden.</translation>
    </message>
    <message>
        <source>My location</source>
        <extracomment>In the place of a city’s name.</extracomment>
        <translation>Mein Standort</translation>
    </message>
    <message>
        <source>Location not available. Type a city instead.</source>
        <translation>Standort nicht verfügbar. Gib stattdessen eine Stadt ein.</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <extracomment>%1 is a list of the symbols of shares.</extracomment>
        <translation>Nicht gefunden: %1</translation>
    </message>
    <message>
        <source>Wind %1 mph</source>
        <extracomment>%1 is a speed in miles an hour.</extracomment>
        <translation>Wind %1 mph</translation>
    </message>
    <message>
        <source>Wind %1 km/h</source>
        <extracomment>%1 is a speed in kilometres an hour.</extracomment>
        <translation>Wind %1 km/h</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Allow %1 to control Music or Spotify in
System Settings › Privacy &amp; Security › Automation.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>Erlaube %1 die Steuerung von Medienspielern
in den Datenschutz-Einstellungen der Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>Play something in Music or Spotify
and it shows up here.</source>
        <translation>Spiel etwas in einem Medienspieler,
und es erscheint hier.</translation>
    </message>
    <message>
        <source>Previous</source>
        <extracomment>The previous song.</extracomment>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>The next song.</extracomment>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>charging</source>
        <extracomment>Of the battery, after its level: “80% · charging”.</extracomment>
        <translation>lädt</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>The processor and how busy it is. There is little room.</extracomment>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>The working memory (RAM).</extracomment>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Festplatte</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is an amount with its unit, such as 12.3 GB.</extracomment>
        <translation>%1 frei</translation>
    </message>
    <message>
        <source>No camera found.</source>
        <translation>Keine Kamera gefunden.</translation>
    </message>
    <message>
        <source>Allow %1 to use the camera in
System Settings › Privacy &amp; Security › Camera.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>Erlaube %1 den Zugriff auf die Kamera in den
Datenschutz-Einstellungen der Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>Events</source>
        <extracomment>Heading of the list of appointments.</extracomment>
        <translation>Termine</translation>
    </message>
    <message>
        <source>Allow Calendar</source>
        <translation>Kalender erlauben</translation>
    </message>
    <message>
        <source>Nothing else today or tomorrow.</source>
        <translation>Heute und morgen steht nichts mehr an.</translation>
    </message>
    <message>
        <source>Allow Reminders</source>
        <translation>Erinnerungen erlauben</translation>
    </message>
    <message>
        <source>All done</source>
        <extracomment>Instead of a list: no reminder is left.</extracomment>
        <translation>Alles erledigt</translation>
    </message>
    <message>
        <source>Nothing else today.</source>
        <translation>Heute steht nichts mehr an.</translation>
    </message>
    <message>
        <source>Complete</source>
        <extracomment>A verb, on the circle before a reminder: mark it as done.</extracomment>
        <translation>Erledigen</translation>
    </message>
    <message>
        <source>Event</source>
        <extracomment>The title of an appointment that has none.</extracomment>
        <translation>Termin</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Morgen</translation>
    </message>
    <message>
        <source>All day</source>
        <extracomment>In the place of an appointment’s time.</extracomment>
        <translation>Ganztägig</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Want more? Meet Fennivar</source>
        <translation>Lust auf mehr? Lern Fennivar kennen</translation>
    </message>
    <message>
        <source>Kestrune is one piece of Fennivar, the all-in-one app that makes your Mac work the way it should.</source>
        <translation>Kestrune ist ein Teil von Fennivar, der Rundum-App, mit der dein Rechner so arbeitet, wie er soll.</translation>
    </message>
    <message>
        <source>Snap windows into place with a key or a drag</source>
        <translation>Rücke Fenster mit einer Taste oder einem Zug zurecht</translation>
    </message>
    <message>
        <source>Find files, apps and settings from one field</source>
        <translation>Finde Dateien, Apps und Einstellungen in einem Feld</translation>
    </message>
    <message>
        <source>See what fills your disk and free it up</source>
        <translation>Sieh, was die Festplatte füllt, und schaffe Platz</translation>
    </message>
    <message>
        <source>Keep an eye on the battery and make it last</source>
        <translation>Behalte den Akku im Blick und schone ihn</translation>
    </message>
    <message>
        <source>Discover Fennivar ↗</source>
        <translation>Fennivar entdecken ↗</translation>
    </message>
    <message>
        <source>Opening</source>
        <extracomment>Heading of the settings that say how the notch opens.</extracomment>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open the notch</source>
        <extracomment>Followed by the choice of “On hover” and “On click”.</extracomment>
        <translation>Notch öffnen</translation>
    </message>
    <message>
        <source>Hover delay</source>
        <extracomment>How long the pointer rests on the notch before it opens; beside a slider.</extracomment>
        <translation>Verzögerung beim Verweilen</translation>
    </message>
    <message>
        <source>Open and close with ⌃⌥⌘N</source>
        <translation>Mit Strg+Alt+Super+N öffnen und schließen</translation>
    </message>
    <message>
        <source>Show the song or timer beside the closed notch</source>
        <translation>Titel oder Timer neben der geschlossenen Notch zeigen</translation>
    </message>
    <message>
        <source>Show new screenshots beside the notch</source>
        <translation>Neue Bildschirmfotos neben der Notch zeigen</translation>
    </message>
    <message>
        <source>Displays</source>
        <extracomment>Heading of the settings that are about monitors.</extracomment>
        <translation>Bildschirme</translation>
    </message>
    <message>
        <source>Show on every display</source>
        <translation>Auf jedem Bildschirm zeigen</translation>
    </message>
    <message>
        <source>Draw a notch on displays without one</source>
        <translation>Auf Bildschirmen ohne Notch eine zeichnen</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Datenschutz</translation>
    </message>
    <message>
        <source>Everything stays on this Mac. Weather asks Open-Meteo for your city&apos;s forecast and Stocks asks Yahoo Finance for quotes; nothing else goes online.</source>
        <translation>Alles bleibt auf diesem Rechner. Wetter fragt Open-Meteo nach der Vorhersage für deine Stadt und Aktien fragt Yahoo Finance nach Kursen; sonst geht nichts ins Netz.</translation>
    </message>
    <message>
        <source>Keep a clipboard history</source>
        <translation>Verlauf der Zwischenablage führen</translation>
    </message>
    <message>
        <source>Read Codex usage (~/.codex)</source>
        <translation>Codex-Nutzung lesen (~/.codex)</translation>
    </message>
    <message>
        <source>Read Claude Code usage (~/.claude)</source>
        <translation>Claude-Code-Nutzung lesen (~/.claude)</translation>
    </message>
    <message>
        <source>Temperatures in °F</source>
        <translation>Temperaturen in °F</translation>
    </message>
    <message>
        <source>Home screen</source>
        <translation>Startansicht</translation>
    </message>
    <message>
        <source>Restore default layout</source>
        <translation>Standardanordnung wiederherstellen</translation>
    </message>
    <message>
        <source>Leave it at 0 to compare with your busiest block of the week. Anthropic does not publish limits in tokens, so set your own if you know it.</source>
        <translation>Lass es bei 0, um mit deinem stärksten Block der Woche zu vergleichen. Anthropic veröffentlicht keine Grenzen in Tokens; trag deine ein, wenn du sie kennst.</translation>
    </message>
    <message>
        <source>Claude 5-hour budget (tokens)</source>
        <translation>Claude-Budget für 5 Stunden (Tokens)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Kestrune Settings</source>
        <translation>Kestrune-Einstellungen</translation>
    </message>
    <message>
        <source>This copy gets its updates with its package, or from whoever built it.</source>
        <translation>Diese Kopie wird mit ihrem Paket aktualisiert oder von dem, der sie gebaut hat.</translation>
    </message>
    <message>
        <source>Open Kestrune at login</source>
        <translation>Kestrune beim Anmelden öffnen</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Updates automatisch installieren</translation>
    </message>
    <message>
        <source>Open Notch</source>
        <translation>Notch öffnen</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Updates suchen …</translation>
    </message>
    <message>
        <source>Get more tools: Fennivar ↗</source>
        <translation>Mehr Werkzeuge: Fennivar ↗</translation>
    </message>
    <message>
        <source>Quit Kestrune</source>
        <translation>Kestrune beenden</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>%1 is a number of milliseconds.</extracomment>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Kestrune then looks once a day, downloads what is new and asks before it is installed.</source>
        <translation>Kestrune sucht dann einmal am Tag, lädt, was neu ist, und fragt, bevor es installiert wird.</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Softwareupdate</translation>
    </message>
    <message>
        <source>The list of releases is not signed by Kestrune’s makers, so it was ignored.</source>
        <translation>Die Liste der Versionen ist nicht von den Machern von Kestrune signiert und wurde deshalb ignoriert.</translation>
    </message>
    <message>
        <source>The list of releases could not be read. Are you online?</source>
        <translation>Die Liste der Versionen ließ sich nicht lesen. Bist du online?</translation>
    </message>
    <message>
        <source>The list of releases is older than one seen before, so it was ignored.</source>
        <translation>Die Liste der Versionen ist älter als eine frühere und wurde deshalb ignoriert.</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Are you online?</source>
        <translation>Das Update ließ sich nicht laden. Bist du online?</translation>
    </message>
    <message>
        <source>The update is not what Kestrune’s makers signed, so it was not kept.</source>
        <translation>Das Update ist nicht das, was die Macher von Kestrune signiert haben, und wurde deshalb nicht behalten.</translation>
    </message>
    <message>
        <source>The update could not be saved. Is the disk full?</source>
        <translation>Das Update ließ sich nicht speichern. Ist der Datenträger voll?</translation>
    </message>
    <message>
        <source>The downloaded update was changed or removed.</source>
        <translation>Das geladene Update wurde verändert oder entfernt.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Updates werden gesucht …</translation>
    </message>
    <message>
        <source>Kestrune is up to date</source>
        <translation>Kestrune ist auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>Kestrune %1 is available</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Kestrune %1 ist verfügbar</translation>
    </message>
    <message>
        <source>Downloading Kestrune %1…</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Kestrune %1 wird geladen …</translation>
    </message>
    <message>
        <source>Kestrune %1 is ready to install</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Kestrune %1 kann installiert werden</translation>
    </message>
    <message>
        <source>Kestrune could not be updated</source>
        <translation>Kestrune konnte nicht aktualisiert werden</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Version %1 ist die neueste.</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Du hast Version %1.</translation>
    </message>
    <message>
        <source>It was checked: it comes from Kestrune’s makers.</source>
        <translation>Geprüft: Es kommt von den Machern von Kestrune.</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>A verb, on a button.</extracomment>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Install…</source>
        <translation>Installieren …</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>A button that closes the window of an update.</extracomment>
        <translation>Später</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Bound to %1</source>
        <extracomment>%1 is a combination of keys, as the desktop writes it.</extracomment>
        <translation>Zugewiesen: %1</translation>
    </message>
    <message>
        <source>Another program has these keys. In the desktop’s settings, bind others to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>Ein anderes Programm hat diese Tasten. Weise in den Einstellungen des Desktops andere zu: %1</translation>
    </message>
    <message>
        <source>No keys are bound. In the desktop’s settings, bind some to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>Keine Tasten sind zugewiesen. Weise in den Einstellungen des Desktops welche zu: %1</translation>
    </message>
    <message>
        <source>The list of releases has expired, so it was ignored. Is the clock set right?</source>
        <translation>Die Liste der Versionen ist abgelaufen und wurde deshalb ignoriert. Geht die Uhr richtig?</translation>
    </message>
    <message>
        <source>The list of releases is dated in the future, so it was ignored. Is the clock set right?</source>
        <translation>Die Liste der Versionen stammt aus der Zukunft und wurde deshalb ignoriert. Geht die Uhr richtig?</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>The name of a calendar in quotation marks.</extracomment>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>Could not be read in full: %1</source>
        <extracomment>%1 is the name of a calendar in quotation marks, or several with commas between them.</extracomment>
        <translation>Nicht vollständig lesbar: %1</translation>
    </message>
    <message>
        <source>Renewed; figures of %1</source>
        <extracomment>A limit has begun anew since it was read; %1 is when that was, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>Erneuert; Werte von %1</translation>
    </message>
    <message>
        <source>All day, since %1</source>
        <extracomment>In the place of an appointment’s time; %1 is the day before today when it began, such as “Mon”.</extracomment>
        <translation>Ganztägig, seit %1</translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>When an appointment began; %1 is a day before today and a time, such as “Mon 14:05”.</extracomment>
        <translation>Seit %1</translation>
    </message>
    <message>
        <source>Hide over full-screen windows</source>
        <extracomment>The closed notch; displays with a camera housing keep theirs.</extracomment>
        <translation>Über Vollbildfenstern ausblenden</translation>
    </message>
    <message>
        <source>Panels at the top edge</source>
        <extracomment>Other programs&apos; bars along the top of the screen; followed by a choice of where the notch is.</extracomment>
        <translation>Leisten am oberen Rand</translation>
    </message>
    <message>
        <source>Automatic</source>
        <extracomment>Completes “Panels at the top edge”: below them, but around a camera.</extracomment>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Notch over them</source>
        <extracomment>Completes “Panels at the top edge”: the notch lies over them.</extracomment>
        <translation>Notch darüber</translation>
    </message>
    <message>
        <source>Notch below them</source>
        <extracomment>Completes “Panels at the top edge”: the notch hangs below them.</extracomment>
        <translation>Notch darunter</translation>
    </message>
    <message>
        <source>Press the keys…</source>
        <translation>Tasten drücken …</translation>
    </message>
    <message>
        <source>Keys that open and close the notch: %1</source>
        <translation>Tasten, die die Notch öffnen und schließen: %1</translation>
    </message>
    <message>
        <source>Keys</source>
        <extracomment>Beside a button that shows the keys of the hot key.</extracomment>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Open and close with %1</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>Mit %1 öffnen und schließen</translation>
    </message>
    <message>
        <source>Pin</source>
        <extracomment>In the menu of an entry of the clipboard history: keep it until it is deleted.</extracomment>
        <translation>Anheften</translation>
    </message>
    <message>
        <source>Pinned</source>
        <extracomment>Said of an entry of the clipboard history that is kept until the user deletes it.</extracomment>
        <translation>Angeheftet</translation>
    </message>
    <message>
        <source>Cut</source>
        <extracomment>In the menu of a text field, as “Copy”, “Paste” and “Select All”.</extracomment>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Play and pause the teleprompter with Ctrl+Alt+Super+P</source>
        <translation>Teleprompter mit Strg+Alt+Super+P abspielen und anhalten</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb legen</translation>
    </message>
    <message>
        <source>Choose the camera</source>
        <translation>Kamera wählen</translation>
    </message>
    <message>
        <source>The desktop will ask you for the camera.</source>
        <translation>Die Arbeitsumgebung wird dich nach der Kamera fragen.</translation>
    </message>
    <message>
        <source>Turn On Camera</source>
        <translation>Kamera einschalten</translation>
    </message>
    <message>
        <source>You refused the camera before, and the desktop remembers it.
Allow it in the desktop’s privacy settings.</source>
        <translation>Du hast die Kamera früher abgelehnt, und die Arbeitsumgebung hat sich das gemerkt.
Erlaube sie in deren Datenschutzeinstellungen.</translation>
    </message>
    <message>
        <source>Cannot be reached now</source>
        <translation>Gerade nicht erreichbar</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>How long the rest of the script takes to scroll past. %1 is a time such as 3:05.</extracomment>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>Play or pause the teleprompter</source>
        <extracomment>What a hot key does, in the desktop&apos;s settings.</extracomment>
        <translation>Teleprompter abspielen oder anhalten</translation>
    </message>
    <message>
        <source>To send files, KDE Connect or GSConnect has to run.</source>
        <translation>Zum Senden von Dateien muss KDE Connect oder GSConnect laufen.</translation>
    </message>
    <message>
        <source>Sending to %1…</source>
        <translation>Wird an %1 gesendet …</translation>
    </message>
    <message>
        <source>On the way to %1.</source>
        <extracomment>The files have been handed over to the service that sends them.</extracomment>
        <translation>Unterwegs zu %1.</translation>
    </message>
    <message>
        <source>Could not be sent to %1.</source>
        <translation>Konnte nicht an %1 gesendet werden.</translation>
    </message>
    <message>
        <source>No paired device is in reach.</source>
        <translation>Kein gekoppeltes Gerät ist erreichbar.</translation>
    </message>
    <message numerus="yes">
        <source>Send %Ln files to %1</source>
        <extracomment>An entry of a menu. %1 is the name of a phone or of another computer.</extracomment>
        <translation>
            <numerusform>%Ln Datei an %1 senden</numerusform>
            <numerusform>%Ln Dateien an %1 senden</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash.</source>
        <translation>%1 konnte nicht in den Papierkorb gelegt werden.</translation>
    </message>
    <message>
        <source>Default Camera</source>
        <extracomment>The first of the cameras to choose from: whichever the desktop takes.</extracomment>
        <translation>Standardkamera</translation>
    </message>
    <message>
        <source>Minutes</source>
        <extracomment>What the empty field for the length of a timer says.</extracomment>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>One minute less</source>
        <translation>Eine Minute weniger</translation>
    </message>
    <message>
        <source>One minute more</source>
        <translation>Eine Minute mehr</translation>
    </message>
    <message>
        <source>The time is up.</source>
        <extracomment>The timer has run down.</extracomment>
        <translation>Die Zeit ist um.</translation>
    </message>
    <message>
        <source>As of %1</source>
        <extracomment>Beside figures that could not be fetched anew; %1 is when they came, such as “14:05” or “24.12.26 14:05”.</extracomment>
        <translation>Stand: %1</translation>
    </message>
    <message>
        <source>Quotes are not available right now.</source>
        <extracomment>The prices of shares, which a server on the web tells.</extracomment>
        <translation>Kurse sind gerade nicht verfügbar.</translation>
    </message>
</context>
</TS>
