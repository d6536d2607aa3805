<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>notch</name>
    <message>
        <source>Unpin</source>
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
        <translation>Starten</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetten</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klaar</translation>
    </message>
    <message>
        <source>%d min</source>
        <translation>%d min</translation>
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
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Gekopieerd</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Text</source>
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
        <translation>Afbeelding</translation>
    </message>
    <message>
        <source>Connect Codex or Claude Code to see your limits.</source>
        <translation>Verbind Codex of Claude Code om je limieten te zien.</translation>
    </message>
    <message>
        <source>Reads the plan limits that Codex CLI saves in ~/.codex on this Mac.</source>
        <translation>Leest de limieten van je abonnement die Codex CLI op deze Mac in ~/.codex bewaart.</translation>
    </message>
    <message>
        <source>Adds up the tokens that Claude Code logs in ~/.claude on this Mac. Anthropic does not store your remaining limit locally.</source>
        <translation>Telt de tokens op die Claude Code op deze Mac in ~/.claude vastlegt. Anthropic bewaart niet lokaal wat er van je limiet over is.</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Laatste 7 dagen</translation>
    </message>
    <message>
        <source>Nothing leaves your Mac.</source>
        <translation>Niets verlaat je Mac.</translation>
    </message>
    <message>
        <source>Read again</source>
        <translation>Opnieuw lezen</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>%@ tokens</source>
        <translation>%@ tokens</translation>
    </message>
    <message>
        <source>%d%% left</source>
        <translation>%d%% over</translation>
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
        <source>Updated %@</source>
        <translation>Bijgewerkt: %@</translation>
    </message>
    <message>
        <source>5-hour window</source>
        <translation>Periode van 5 uur</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Wekelijks</translation>
    </message>
    <message>
        <source>No Claude Code activity found.</source>
        <translation>Geen Claude Code-activiteit gevonden.</translation>
    </message>
    <message>
        <source>%d%% of your budget</source>
        <translation>%d%% van je budget</translation>
    </message>
    <message>
        <source>%d%% of your busiest block this week</source>
        <translation>%d%% van je drukste blok deze week</translation>
    </message>
    <message>
        <source>This 5-hour block</source>
        <translation>Dit blok van 5 uur</translation>
    </message>
    <message>
        <source>Resets: %@</source>
        <translation>Reset: %@</translation>
    </message>
    <message>
        <source>%d%%</source>
        <translation>%d%%</translation>
    </message>
    <message>
        <source>Drop files here to keep them handy.
Drag them out anywhere, or AirDrop them.</source>
        <translation>Zet hier bestanden neer om ze bij de hand te houden.
Sleep ze overal naartoe of verstuur ze met AirDrop.</translation>
    </message>
    <message>
        <source>Allow %@ to read your screenshots folder in
System Settings › Privacy &amp; Security › Files and Folders.</source>
        <translation>Geef %@ toegang tot je map met screenshots bij
Systeeminstellingen › Privacy en beveiliging › Bestanden en mappen.</translation>
    </message>
    <message>
        <source>Take a screenshot (⇧⌘4) and it appears here.
Drag it into any app, or right-click for more.</source>
        <translation>Maak een screenshot (⇧⌘4) en die verschijnt hier.
Sleep hem naar een app of klik met de rechtermuisknop voor meer.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Instellingen openen</translation>
    </message>
    <message>
        <source>Click to open · drag into any app · right-click to copy, AirDrop or add to the Shelf.</source>
        <translation>Klik: openen · sleep naar een app · rechtsklik: kopiëren, AirDrop of Plank</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>In map tonen</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>AirDrop</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leegmaken</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Weghalen</translation>
    </message>
    <message>
        <source>Paste your script here. It scrolls right under the camera so you keep eye contact.</source>
        <translation>Plak hier je tekst. Die loopt vlak onder de camera door, zodat je oogcontact houdt.</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Spreektekst</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Afspelen</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Snelheid</translation>
    </message>
    <message>
        <source>Text %d</source>
        <translation>Tekst %d</translation>
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
        <translation>Mijn locatie</translation>
    </message>
    <message>
        <source>Location not available. Type a city instead.</source>
        <translation>Locatie niet beschikbaar. Typ in plaats daarvan een stad.</translation>
    </message>
    <message>
        <source>Not found: %@</source>
        <translation>Niet gevonden: %@</translation>
    </message>
    <message>
        <source>Wind %@ mph</source>
        <translation>Wind %@ mph</translation>
    </message>
    <message>
        <source>Wind %@ km/h</source>
        <translation>Wind %@ km/u</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Vandaag</translation>
    </message>
    <message>
        <source>Allow %@ to control Music or Spotify in
System Settings › Privacy &amp; Security › Automation.</source>
        <translation>Laat %@ Music of Spotify bedienen bij
Systeeminstellingen › Privacy en beveiliging › Automatisering.</translation>
    </message>
    <message>
        <source>Play something in Music or Spotify
and it shows up here.</source>
        <translation>Speel iets af in Music of Spotify
en het verschijnt hier.</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Vorige</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>charging</source>
        <translation>laadt op</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterij</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Geheugen</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Schijf</translation>
    </message>
    <message>
        <source>%@ free</source>
        <translation>%@ vrij</translation>
    </message>
    <message>
        <source>No camera found.</source>
        <translation>Geen camera gevonden.</translation>
    </message>
    <message>
        <source>Allow %@ to use the camera in
System Settings › Privacy &amp; Security › Camera.</source>
        <translation>Geef %@ toegang tot de camera bij
Systeeminstellingen › Privacy en beveiliging › Camera.</translation>
    </message>
    <message>
        <source>Events</source>
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
        <translation>Alles gedaan</translation>
    </message>
    <message>
        <source>Nothing else today.</source>
        <translation>Vandaag niets meer.</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Voltooien</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Afspraak</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Morgen</translation>
    </message>
    <message>
        <source>All day</source>
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
        <translation>Kestrune is een onderdeel van Fennivar, de alles-in-één-app die je Mac laat werken zoals het hoort.</translation>
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
        <translation>Openen</translation>
    </message>
    <message>
        <source>Open the notch</source>
        <translation>Notch openen</translation>
    </message>
    <message>
        <source>Hover delay</source>
        <translation>Vertraging bij aanwijzen</translation>
    </message>
    <message>
        <source>Open and close with ⌃⌥⌘N</source>
        <translation>Openen en sluiten met ⌃⌥⌘N</translation>
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
        <translation>Alles blijft op deze Mac. Weer vraagt Open-Meteo om de voorspelling voor je stad en Aandelen vraagt Yahoo Finance om koersen; verder gaat er niets online.</translation>
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
        <source>Kestrune %@ is available</source>
        <translation>Kestrune %@ is beschikbaar</translation>
    </message>
    <message>
        <source>Downloading Kestrune %@…</source>
        <translation>Kestrune %@ downloaden…</translation>
    </message>
    <message>
        <source>Kestrune %@ is ready to install</source>
        <translation>Kestrune %@ is klaar om te installeren</translation>
    </message>
    <message>
        <source>Kestrune could not be updated</source>
        <translation>Kestrune kon niet worden bijgewerkt</translation>
    </message>
    <message>
        <source>Version %@ is the newest one.</source>
        <translation>Versie %@ is de nieuwste.</translation>
    </message>
    <message>
        <source>You have version %@.</source>
        <translation>Je hebt versie %@.</translation>
    </message>
    <message>
        <source>It was checked: it comes from Kestrune’s makers.</source>
        <translation>Gecontroleerd: afkomstig van de makers van Kestrune.</translation>
    </message>
    <message>
        <source>Download</source>
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
        <translation>Later</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
</TS>
