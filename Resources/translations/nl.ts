<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>notch</name>
    <message>
        <source>Unpin</source>
        <extracomment>Let the notch close by itself again; the opposite of “Keep open”.</extracomment>
        <translation>Losmaken</translation>
    </message>
    <message>
        <source>Keep open</source>
        <translation>Open houden</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Good night</source>
        <translation>Goedenacht</translation>
    </message>
    <message>
        <source>Good morning</source>
        <translation>Goedemorgen</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>Goedemiddag</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>Goedenavond</translation>
    </message>
    <message>
        <source>Choose what Home shows in Settings › Home screen.</source>
        <translation>Kies bij Instellingen › Startscherm wat hier verschijnt.</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>A note to oneself, such as one jots down.</extracomment>
        <translation>Notitie</translation>
    </message>
    <message>
        <source>Quick note… it saves as you type.</source>
        <translation>Korte notitie… wordt bewaard terwijl je typt.</translation>
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
        <translation>Pauzeren</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Hervatten</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>Start the timer.</extracomment>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>Set the timer back to its beginning.</extracomment>
        <translation>Resetten</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>A button of the script: “Edit” begins to change it, “Done” ends that.
----------
The time of the timer is over.</extracomment>
        <translation>Klaar</translation>
    </message>
    <message numerus="yes">
        <source>%Ln min</source>
        <extracomment>A button that starts a timer; “min” is short for minutes. There is little room.</extracomment>
        <translation>
            <numerusform>%Ln min</numerusform>
            <numerusform>%Ln min</numerusform>
        </translation>
    </message>
    <message>
        <source>The time stays visible beside the closed notch.</source>
        <translation>De tijd blijft zichtbaar naast de gesloten notch.</translation>
    </message>
    <message>
        <source>Fennivar’s notch is on, so Kestrune is paused.</source>
        <translation>De notch van Fennivar staat aan, daarom is Kestrune gepauzeerd.</translation>
    </message>
    <message>
        <source>Turn off Notch in Fennivar to use Kestrune.</source>
        <translation>Zet de notch in Fennivar uit om Kestrune te gebruiken.</translation>
    </message>
    <message>
        <source>Home</source>
        <extracomment>The page that the notch opens with, like that of a telephone.</extracomment>
        <translation>Start</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>Speelt nu</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Klembord</translation>
    </message>
    <message>
        <source>Screenshots</source>
        <translation>Screenshots</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Agenda</translation>
    </message>
    <message>
        <source>Shelf</source>
        <extracomment>A place where files are put down for a while.</extracomment>
        <translation>Plank</translation>
    </message>
    <message>
        <source>AI Usage</source>
        <translation>AI-gebruik</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Weer</translation>
    </message>
    <message>
        <source>Stocks</source>
        <extracomment>The prices of shares.</extracomment>
        <translation>Aandelen</translation>
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
        <translation>Systeem</translation>
    </message>
    <message>
        <source>Greeting and date</source>
        <translation>Begroeting en datum</translation>
    </message>
    <message>
        <source>Today&apos;s events</source>
        <translation>Afspraken vandaag</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Herinneringen</translation>
    </message>
    <message>
        <source>Latest copies</source>
        <translation>Laatst gekopieerd</translation>
    </message>
    <message>
        <source>Latest screenshots</source>
        <translation>Laatste screenshots</translation>
    </message>
    <message>
        <source>Hidden</source>
        <extracomment>Where a block of Home stands: nowhere. The others are its three columns.</extracomment>
        <translation>Verborgen</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Midden</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>On hover</source>
        <extracomment>Completes “Open the notch”: when the pointer rests on it.</extracomment>
        <translation>Bij aanwijzen</translation>
    </message>
    <message>
        <source>On click</source>
        <translation>Bij klikken</translation>
    </message>
    <message>
        <source>More tools at fennivar.example</source>
        <translation>Meer op fennivar.example</translation>
    </message>
    <message>
        <source>this app</source>
        <extracomment>Stands for the name of the program where it has none.</extracomment>
        <translation>deze app</translation>
    </message>
    <message>
        <source>Copy something and it appears here.
Passwords from password managers are never saved.</source>
        <translation>Kopieer iets en het verschijnt hier.
Wachtwoorden uit wachtwoordbeheerders worden nooit bewaard.</translation>
    </message>
    <message>
        <source>Clipboard history is off.
Turn it on in Settings.</source>
        <translation>De klembordgeschiedenis staat uit.
Zet die aan bij Instellingen.</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Geschiedenis wissen</translation>
    </message>
    <message>
        <source>Nothing matches.</source>
        <translation>Niets gevonden.</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>In the menu of an entry: delete it from the history.</extracomment>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Copied</source>
        <extracomment>Shown in the place of what was just copied again.</extracomment>
        <translation>Gekopieerd</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>What an empty search field says, and the button that looks for a city.</extracomment>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>What the list shows: copies of every kind.</extracomment>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>What the list shows: the copies that are texts.</extracomment>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Afbeeldingen</translation>
    </message>
    <message>
        <source>PDFs</source>
        <translation>Pdf’s</translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>The title of a copied picture, before its size.</extracomment>
        <translation>Afbeelding</translation>
    </message>
    <message>
        <source>Connect Codex or Claude Code to see your limits.</source>
        <translation>Verbind Codex of Claude Code om je limieten te zien.</translation>
    </message>
    <message>
        <source>Reads the plan limits that Codex CLI saves in ~/.codex on this Mac.</source>
        <translation>Leest de limieten van je abonnement die Codex CLI op deze computer in ~/.codex bewaart.</translation>
    </message>
    <message>
        <source>Adds up the tokens that Claude Code logs in ~/.claude on this Mac. Anthropic does not store your remaining limit locally.</source>
        <translation>Telt de tokens op die Claude Code op deze computer in ~/.claude vastlegt. Anthropic bewaart niet lokaal wat er van je limiet over is.</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Laatste 7 dagen</translation>
    </message>
    <message>
        <source>Nothing leaves your Mac.</source>
        <translation>Niets verlaat je computer.</translation>
    </message>
    <message>
        <source>Read again</source>
        <extracomment>On a round button: read the logs once more.</extracomment>
        <translation>Opnieuw lezen</translation>
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
            <numerusform>%1 token</numerusform>
            <numerusform>%1 tokens</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln% left</source>
        <extracomment>What is left of a limit, in per cent.</extracomment>
        <translation>
            <numerusform>%Ln% over</numerusform>
            <numerusform>%Ln% over</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lezen…</translation>
    </message>
    <message>
        <source>No Codex activity found yet. Use Codex once and it appears here.</source>
        <translation>Nog geen Codex-activiteit gevonden. Gebruik Codex één keer, dan verschijnt die hier.</translation>
    </message>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is a time, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>Bijgewerkt: %1</translation>
    </message>
    <message>
        <source>5-hour window</source>
        <extracomment>The name of a limit that holds for five hours.</extracomment>
        <translation>Periode van 5 uur</translation>
    </message>
    <message>
        <source>Weekly</source>
        <extracomment>The name of a limit that holds for a week.</extracomment>
        <translation>Wekelijks</translation>
    </message>
    <message>
        <source>No Claude Code activity found.</source>
        <translation>Geen Claude Code-activiteit gevonden.</translation>
    </message>
    <message>
        <source>%1% of your budget</source>
        <extracomment>%1 is a number. There is little room.</extracomment>
        <translation>%1% van je budget</translation>
    </message>
    <message>
        <source>%1% of your busiest block this week</source>
        <extracomment>%1 is a number; a block is five hours of work. There is little room.</extracomment>
        <translation>%1% van je drukste blok deze week</translation>
    </message>
    <message>
        <source>This 5-hour block</source>
        <translation>Dit blok van 5 uur</translation>
    </message>
    <message>
        <source>Resets: %1</source>
        <extracomment>When a limit begins anew; %1 is a time, such as “14:05” or “Mon 14:05”. There is little room.</extracomment>
        <translation>Reset: %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>%1 is a number, with decimals where it is the change of a share’s price.</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Drop files here to keep them handy.
Drag them out anywhere, or AirDrop them.</source>
        <translation>Zet hier bestanden neer om ze bij de hand te houden.
Sleep ze overal naartoe of stuur ze naar een apparaat.</translation>
    </message>
    <message>
        <source>Allow %1 to read your screenshots folder in
System Settings › Privacy &amp; Security › Files and Folders.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>Geef %1 toegang tot je map met screenshots:
de rechten van de map staan het niet toe.</translation>
    </message>
    <message>
        <source>Take a screenshot (⇧⌘4) and it appears here.
Drag it into any app, or right-click for more.</source>
        <translation>Maak een screenshot (Print Screen) en die verschijnt hier.
Sleep hem naar een app of klik met de rechtermuisknop voor meer.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>A button that opens the settings of the desktop.</extracomment>
        <translation>Instellingen openen</translation>
    </message>
    <message>
        <source>Click to open · drag into any app · right-click to copy, AirDrop or add to the Shelf.</source>
        <translation>Klik: openen · sleep naar een app · rechtsklik: kopiëren, versturen of Plank</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>In map tonen</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>Naar apparaat sturen</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>A button: take all files off the shelf.</extracomment>
        <translation>Leegmaken</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Take a file off the shelf; the file itself stays where it is.</extracomment>
        <translation>Weghalen</translation>
    </message>
    <message>
        <source>Paste your script here. It scrolls right under the camera so you keep eye contact.</source>
        <translation>Plak hier je tekst. Die loopt vlak onder de camera door, zodat je oogcontact houdt.</translation>
    </message>
    <message>
        <source>Script</source>
        <extracomment>Name of the field for the text that is read aloud.</extracomment>
        <translation>Spreektekst</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Afspelen</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>A button: scroll the script from its beginning again.</extracomment>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>How fast the script scrolls.</extracomment>
        <translation>Snelheid</translation>
    </message>
    <message>
        <source>Text %1</source>
        <extracomment>%1 is the size of the letters in points. There is little room.</extracomment>
        <translation>Tekst %1</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Kleinere tekst</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Grotere tekst</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bewerken</translation>
    </message>
    <message>
        <source>Add to Shelf</source>
        <translation>Op plank zetten</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>In the menu of a screenshot: copy the picture.</extracomment>
        <translation>Kopiëren</translation>
    </message>
    <message>
        <source>Type the symbols that you want to follow.</source>
        <translation>Typ de symbolen die je wilt volgen.</translation>
    </message>
    <message>
        <source>Symbols, separated by commas (AAPL, TSLA, ^GSPC, BTC-USD)</source>
        <translation>Symbolen, gescheiden door komma’s (AAPL, TSLA, ^GSPC, BTC-USD)</translation>
    </message>
    <message>
        <source>Delayed quotes from Yahoo Finance.</source>
        <translation>Vertraagde koersen van Yahoo Finance.</translation>
    </message>
    <message>
        <source>Edit symbols</source>
        <translation>Symbolen bewerken</translation>
    </message>
    <message>
        <source>Choose a city to see its weather.</source>
        <translation>Kies een stad om het weer te zien.</translation>
    </message>
    <message>
        <source>City</source>
        <extracomment>What the empty field for the name of a city says.</extracomment>
        <translation>Stad</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Mijn locatie gebruiken</translation>
    </message>
    <message>
        <source>Change city</source>
        <translation>Stad wijzigen</translation>
    </message>
    <message>
        <source>Forecast by Open-Meteo. Only the city&apos;s coordinates are sent.</source>
        <translation>Voorspelling van Open-Meteo. Alleen de coördinaten van de stad worden verstuurd.</translation>
    </message>
    <message>
        <source>Weather is not available right now.</source>
        <translation>Het weer is nu niet beschikbaar.</translation>
    </message>
    <message>
        <source>City not found.</source>
        <translation>Stad niet gevonden.</translation>
    </message>
    <message>
        <source>My location</source>
        <extracomment>In the place of a city’s name.</extracomment>
        <translation>Mijn locatie</translation>
    </message>
    <message>
        <source>Location not available. Type a city instead.</source>
        <translation>Locatie niet beschikbaar. Typ in plaats daarvan een stad.</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <extracomment>%1 is a list of the symbols of shares.</extracomment>
        <translation>Niet gevonden: %1</translation>
    </message>
    <message>
        <source>Wind %1 mph</source>
        <extracomment>%1 is a speed in miles an hour.</extracomment>
        <translation>Wind %1 mph</translation>
    </message>
    <message>
        <source>Wind %1 km/h</source>
        <extracomment>%1 is a speed in kilometres an hour.</extracomment>
        <translation>Wind %1 km/u</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Vandaag</translation>
    </message>
    <message>
        <source>Allow %1 to control Music or Spotify in
System Settings › Privacy &amp; Security › Automation.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>Laat %1 mediaspelers bedienen in
de privacy-instellingen van het bureaublad.</translation>
    </message>
    <message>
        <source>Play something in Music or Spotify
and it shows up here.</source>
        <translation>Speel iets af in een mediaspeler
en het verschijnt hier.</translation>
    </message>
    <message>
        <source>Previous</source>
        <extracomment>The previous song.</extracomment>
        <translation>Vorige</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>The next song.</extracomment>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>charging</source>
        <extracomment>Of the battery, after its level: “80% · charging”.</extracomment>
        <translation>laadt op</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterij</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>The processor and how busy it is. There is little room.</extracomment>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>The working memory (RAM).</extracomment>
        <translation>Geheugen</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Schijf</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is an amount with its unit, such as 12.3 GB.</extracomment>
        <translation>%1 vrij</translation>
    </message>
    <message>
        <source>No camera found.</source>
        <translation>Geen camera gevonden.</translation>
    </message>
    <message>
        <source>Allow %1 to use the camera in
System Settings › Privacy &amp; Security › Camera.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>Geef %1 toegang tot de camera in
de privacy-instellingen van het bureaublad.</translation>
    </message>
    <message>
        <source>Events</source>
        <extracomment>Heading of the list of appointments.</extracomment>
        <translation>Afspraken</translation>
    </message>
    <message>
        <source>Allow Calendar</source>
        <translation>Toegang geven</translation>
    </message>
    <message>
        <source>Nothing else today or tomorrow.</source>
        <translation>Vandaag en morgen niets meer.</translation>
    </message>
    <message>
        <source>Allow Reminders</source>
        <translation>Toegang geven</translation>
    </message>
    <message>
        <source>All done</source>
        <extracomment>Instead of a list: no reminder is left.</extracomment>
        <translation>Alles gedaan</translation>
    </message>
    <message>
        <source>Nothing else today.</source>
        <translation>Vandaag niets meer.</translation>
    </message>
    <message>
        <source>Complete</source>
        <extracomment>A verb, on the circle before a reminder: mark it as done.</extracomment>
        <translation>Voltooien</translation>
    </message>
    <message>
        <source>Event</source>
        <extracomment>The title of an appointment that has none.</extracomment>
        <translation>Afspraak</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Morgen</translation>
    </message>
    <message>
        <source>All day</source>
        <extracomment>In the place of an appointment’s time.</extracomment>
        <translation>Hele dag</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gisteren</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Omhoog</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Omlaag</translation>
    </message>
    <message>
        <source>Want more? Meet Fennivar</source>
        <translation>Wil je meer? Maak kennis met Fennivar</translation>
    </message>
    <message>
        <source>Kestrune is one piece of Fennivar, the all-in-one app that makes your Mac work the way it should.</source>
        <translation>Kestrune is een onderdeel van Fennivar, de alles-in-één-app die je computer laat werken zoals het hoort.</translation>
    </message>
    <message>
        <source>Snap windows into place with a key or a drag</source>
        <translation>Zet vensters op hun plek met een toets of door te slepen</translation>
    </message>
    <message>
        <source>Find files, apps and settings from one field</source>
        <translation>Vind bestanden, apps en instellingen vanuit één veld</translation>
    </message>
    <message>
        <source>See what fills your disk and free it up</source>
        <translation>Zie wat je schijf vult en maak ruimte vrij</translation>
    </message>
    <message>
        <source>Keep an eye on the battery and make it last</source>
        <translation>Let op de batterij en laat die langer meegaan</translation>
    </message>
    <message>
        <source>Discover Fennivar ↗</source>
        <translation>Ontdek Fennivar ↗</translation>
    </message>
    <message>
        <source>Opening</source>
        <extracomment>Heading of the settings that say how the notch opens.</extracomment>
        <translation>Openen</translation>
    </message>
    <message>
        <source>Open the notch</source>
        <extracomment>Followed by the choice of “On hover” and “On click”.</extracomment>
        <translation>Notch openen</translation>
    </message>
    <message>
        <source>Hover delay</source>
        <extracomment>How long the pointer rests on the notch before it opens; beside a slider.</extracomment>
        <translation>Vertraging bij aanwijzen</translation>
    </message>
    <message>
        <source>Open and close with ⌃⌥⌘N</source>
        <translation>Openen en sluiten met Ctrl+Alt+Super+N</translation>
    </message>
    <message>
        <source>Show the song or timer beside the closed notch</source>
        <translation>Nummer of timer naast de gesloten notch tonen</translation>
    </message>
    <message>
        <source>Show new screenshots beside the notch</source>
        <translation>Nieuwe screenshots naast de notch tonen</translation>
    </message>
    <message>
        <source>Displays</source>
        <extracomment>Heading of the settings that are about monitors.</extracomment>
        <translation>Beeldschermen</translation>
    </message>
    <message>
        <source>Show on every display</source>
        <translation>Op elk beeldscherm tonen</translation>
    </message>
    <message>
        <source>Draw a notch on displays without one</source>
        <translation>Notch tekenen op beeldschermen zonder notch</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privacy</translation>
    </message>
    <message>
        <source>Everything stays on this Mac. Weather asks Open-Meteo for your city&apos;s forecast and Stocks asks Yahoo Finance for quotes; nothing else goes online.</source>
        <translation>Alles blijft op deze computer. Weer vraagt Open-Meteo om de voorspelling voor je stad en Aandelen vraagt Yahoo Finance om koersen; verder gaat er niets online.</translation>
    </message>
    <message>
        <source>Keep a clipboard history</source>
        <translation>Klembordgeschiedenis bijhouden</translation>
    </message>
    <message>
        <source>Read Codex usage (~/.codex)</source>
        <translation>Codex-gebruik lezen (~/.codex)</translation>
    </message>
    <message>
        <source>Read Claude Code usage (~/.claude)</source>
        <translation>Claude Code-gebruik lezen (~/.claude)</translation>
    </message>
    <message>
        <source>Temperatures in °F</source>
        <translation>Temperaturen in °F</translation>
    </message>
    <message>
        <source>Home screen</source>
        <translation>Startscherm</translation>
    </message>
    <message>
        <source>Restore default layout</source>
        <translation>Standaardindeling herstellen</translation>
    </message>
    <message>
        <source>Leave it at 0 to compare with your busiest block of the week. Anthropic does not publish limits in tokens, so set your own if you know it.</source>
        <translation>Laat dit op 0 staan om te vergelijken met je drukste blok van de week. Anthropic publiceert geen limieten in tokens; vul die van jou in als je die kent.</translation>
    </message>
    <message>
        <source>Claude 5-hour budget (tokens)</source>
        <translation>Claude-budget voor 5 uur (tokens)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>Kestrune Settings</source>
        <translation>Kestrune-instellingen</translation>
    </message>
    <message>
        <source>This copy gets its updates with its package, or from whoever built it.</source>
        <translation>Deze kopie krijgt updates via het pakket of van wie de kopie heeft gebouwd.</translation>
    </message>
    <message>
        <source>Open Kestrune at login</source>
        <translation>Kestrune openen bij inloggen</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Updates automatisch installeren</translation>
    </message>
    <message>
        <source>Open Notch</source>
        <translation>Notch openen</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Instellingen…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Zoeken naar updates…</translation>
    </message>
    <message>
        <source>Get more tools: Fennivar ↗</source>
        <translation>Meer tools: Fennivar ↗</translation>
    </message>
    <message>
        <source>Quit Kestrune</source>
        <translation>Kestrune afsluiten</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>%1 is a number of milliseconds.</extracomment>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Kestrune then looks once a day, downloads what is new and asks before it is installed.</source>
        <translation>Kestrune zoekt dan één keer per dag, downloadt wat nieuw is en vraagt het voor de installatie.</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Software-update</translation>
    </message>
    <message>
        <source>The list of releases is not signed by Kestrune’s makers, so it was ignored.</source>
        <translation>De lijst met versies is niet ondertekend door de makers van Kestrune en is daarom genegeerd.</translation>
    </message>
    <message>
        <source>The list of releases could not be read. Are you online?</source>
        <translation>De lijst met versies kon niet worden gelezen. Ben je online?</translation>
    </message>
    <message>
        <source>The list of releases is older than one seen before, so it was ignored.</source>
        <translation>De lijst met versies is ouder dan een eerdere en is daarom genegeerd.</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Are you online?</source>
        <translation>De update kon niet worden gedownload. Ben je online?</translation>
    </message>
    <message>
        <source>The update is not what Kestrune’s makers signed, so it was not kept.</source>
        <translation>De update is niet wat de makers van Kestrune hebben ondertekend en is daarom niet bewaard.</translation>
    </message>
    <message>
        <source>The update could not be saved. Is the disk full?</source>
        <translation>De update kon niet worden opgeslagen. Is de schijf vol?</translation>
    </message>
    <message>
        <source>The downloaded update was changed or removed.</source>
        <translation>De gedownloade update is gewijzigd of verwijderd.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Zoeken naar updates…</translation>
    </message>
    <message>
        <source>Kestrune is up to date</source>
        <translation>Kestrune is up-to-date</translation>
    </message>
    <message>
        <source>Kestrune %1 is available</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Kestrune %1 is beschikbaar</translation>
    </message>
    <message>
        <source>Downloading Kestrune %1…</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Kestrune %1 downloaden…</translation>
    </message>
    <message>
        <source>Kestrune %1 is ready to install</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Kestrune %1 is klaar om te installeren</translation>
    </message>
    <message>
        <source>Kestrune could not be updated</source>
        <translation>Kestrune kon niet worden bijgewerkt</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Versie %1 is de nieuwste.</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Je hebt versie %1.</translation>
    </message>
    <message>
        <source>It was checked: it comes from Kestrune’s makers.</source>
        <translation>Gecontroleerd: afkomstig van de makers van Kestrune.</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>A verb, on a button.</extracomment>
        <translation>Downloaden</translation>
    </message>
    <message>
        <source>Install…</source>
        <translation>Installeren…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Opnieuw proberen</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>A button that closes the window of an update.</extracomment>
        <translation>Later</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Bound to %1</source>
        <extracomment>%1 is a combination of keys, as the desktop writes it.</extracomment>
        <translation>Toegewezen: %1</translation>
    </message>
    <message>
        <source>Another program has these keys. In the desktop’s settings, bind others to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>Een ander programma heeft deze toetsen. Wijs in de instellingen van het bureaublad andere toe aan: %1</translation>
    </message>
    <message>
        <source>No keys are bound. In the desktop’s settings, bind some to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>Er zijn geen toetsen toegewezen. Wijs ze in de instellingen van het bureaublad toe aan: %1</translation>
    </message>
    <message>
        <source>The list of releases has expired, so it was ignored. Is the clock set right?</source>
        <translation>De lijst met versies is verlopen en is daarom genegeerd. Staat de klok goed?</translation>
    </message>
    <message>
        <source>The list of releases is dated in the future, so it was ignored. Is the clock set right?</source>
        <translation>De lijst met versies heeft een datum in de toekomst en is daarom genegeerd. Staat de klok goed?</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>The name of a calendar in quotation marks.</extracomment>
        <translation>‘%1’</translation>
    </message>
    <message>
        <source>Could not be read in full: %1</source>
        <extracomment>%1 is the name of a calendar in quotation marks, or several with commas between them.</extracomment>
        <translation>Niet volledig leesbaar: %1</translation>
    </message>
    <message>
        <source>Renewed; figures of %1</source>
        <extracomment>A limit has begun anew since it was read; %1 is when that was, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>Vernieuwd; cijfers van %1</translation>
    </message>
    <message>
        <source>All day, since %1</source>
        <extracomment>In the place of an appointment’s time; %1 is the day before today when it began, such as “Mon”.</extracomment>
        <translation>Hele dag, sinds %1</translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>When an appointment began; %1 is a day before today and a time, such as “Mon 14:05”.</extracomment>
        <translation>Sinds %1</translation>
    </message>
    <message>
        <source>Hide over full-screen windows</source>
        <extracomment>The closed notch; displays with a camera housing keep theirs.</extracomment>
        <translation>Verbergen boven vensters op volledig scherm</translation>
    </message>
    <message>
        <source>Panels at the top edge</source>
        <extracomment>Other programs&apos; bars along the top of the screen; followed by a choice of where the notch is.</extracomment>
        <translation>Panelen aan de bovenrand</translation>
    </message>
    <message>
        <source>Automatic</source>
        <extracomment>Completes “Panels at the top edge”: below them, but around a camera.</extracomment>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Notch over them</source>
        <extracomment>Completes “Panels at the top edge”: the notch lies over them.</extracomment>
        <translation>Notch eroverheen</translation>
    </message>
    <message>
        <source>Notch below them</source>
        <extracomment>Completes “Panels at the top edge”: the notch hangs below them.</extracomment>
        <translation>Notch eronder</translation>
    </message>
    <message>
        <source>Press the keys…</source>
        <translation>Druk op de toetsen…</translation>
    </message>
    <message>
        <source>Keys that open and close the notch: %1</source>
        <translation>Toetsen die de notch openen en sluiten: %1</translation>
    </message>
    <message>
        <source>Keys</source>
        <extracomment>Beside a button that shows the keys of the hot key.</extracomment>
        <translation>Toetsen</translation>
    </message>
    <message>
        <source>Open and close with %1</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>Openen en sluiten met %1</translation>
    </message>
    <message>
        <source>Pin</source>
        <extracomment>In the menu of an entry of the clipboard history: keep it until it is deleted.</extracomment>
        <translation>Vastmaken</translation>
    </message>
    <message>
        <source>Pinned</source>
        <extracomment>Said of an entry of the clipboard history that is kept until the user deletes it.</extracomment>
        <translation>Vastgemaakt</translation>
    </message>
    <message>
        <source>Cut</source>
        <extracomment>In the menu of a text field, as “Copy”, “Paste” and “Select All”.</extracomment>
        <translation>Knip</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Plak</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecteer alles</translation>
    </message>
    <message>
        <source>Play and pause the teleprompter with Ctrl+Alt+Super+P</source>
        <translation>Teleprompter afspelen en pauzeren met Ctrl+Alt+Super+P</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Naar prullenbak verplaatsen</translation>
    </message>
    <message>
        <source>Choose the camera</source>
        <translation>Camera kiezen</translation>
    </message>
    <message>
        <source>The desktop will ask you for the camera.</source>
        <translation>Het bureaublad zal je om de camera vragen.</translation>
    </message>
    <message>
        <source>Turn On Camera</source>
        <translation>Camera aanzetten</translation>
    </message>
    <message>
        <source>You refused the camera before, and the desktop remembers it.
Allow it in the desktop’s privacy settings.</source>
        <translation>Je hebt de camera eerder geweigerd en het bureaublad onthoudt dat.
Sta hem toe in de privacy-instellingen ervan.</translation>
    </message>
    <message>
        <source>Cannot be reached now</source>
        <translation>Nu niet bereikbaar</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>How long the rest of the script takes to scroll past. %1 is a time such as 3:05.</extracomment>
        <translation>nog %1</translation>
    </message>
    <message>
        <source>Play or pause the teleprompter</source>
        <extracomment>What a hot key does, in the desktop&apos;s settings.</extracomment>
        <translation>Teleprompter afspelen of pauzeren</translation>
    </message>
    <message>
        <source>To send files, KDE Connect or GSConnect has to run.</source>
        <translation>Om bestanden te versturen moet KDE Connect of GSConnect actief zijn.</translation>
    </message>
    <message>
        <source>Sending to %1…</source>
        <translation>Versturen naar %1…</translation>
    </message>
    <message>
        <source>On the way to %1.</source>
        <extracomment>The files have been handed over to the service that sends them.</extracomment>
        <translation>Onderweg naar %1.</translation>
    </message>
    <message>
        <source>Could not be sent to %1.</source>
        <translation>Kon niet naar %1 worden verstuurd.</translation>
    </message>
    <message>
        <source>No paired device is in reach.</source>
        <translation>Er is geen gekoppeld apparaat in bereik.</translation>
    </message>
    <message numerus="yes">
        <source>Send %Ln files to %1</source>
        <extracomment>An entry of a menu. %1 is the name of a phone or of another computer.</extracomment>
        <translation>
            <numerusform>%Ln bestand naar %1 versturen</numerusform>
            <numerusform>%Ln bestanden naar %1 versturen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash.</source>
        <translation>%1 kon niet naar de prullenbak worden verplaatst.</translation>
    </message>
    <message>
        <source>Default Camera</source>
        <extracomment>The first of the cameras to choose from: whichever the desktop takes.</extracomment>
        <translation>Standaardcamera</translation>
    </message>
    <message>
        <source>Minutes</source>
        <extracomment>What the empty field for the length of a timer says.</extracomment>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>One minute less</source>
        <translation>Eén minuut korter</translation>
    </message>
    <message>
        <source>One minute more</source>
        <translation>Eén minuut langer</translation>
    </message>
    <message>
        <source>The time is up.</source>
        <extracomment>The timer has run down.</extracomment>
        <translation>De tijd is om.</translation>
    </message>
    <message>
        <source>As of %1</source>
        <extracomment>Beside figures that could not be fetched anew; %1 is when they came, such as “14:05” or “24.12.26 14:05”.</extracomment>
        <translation>Stand van %1</translation>
    </message>
    <message>
        <source>Quotes are not available right now.</source>
        <extracomment>The prices of shares, which a server on the web tells.</extracomment>
        <translation>De koersen zijn nu niet beschikbaar.</translation>
    </message>
</context>
</TS>
