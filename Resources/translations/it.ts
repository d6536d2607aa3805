<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>notch</name>
    <message>
        <source>Unpin</source>
        <extracomment>Let the notch close by itself again; the opposite of “Keep open”.</extracomment>
        <translation>Sblocca</translation>
    </message>
    <message>
        <source>Keep open</source>
        <translation>Tieni aperto</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Good night</source>
        <translation>Buonanotte</translation>
    </message>
    <message>
        <source>Good morning</source>
        <translation>Buongiorno</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>Buon pomeriggio</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>Buonasera</translation>
    </message>
    <message>
        <source>Choose what Home shows in Settings › Home screen.</source>
        <translation>Scegli cosa mostra Home in Impostazioni › Schermata Home.</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>A note to oneself, such as one jots down.</extracomment>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Quick note… it saves as you type.</source>
        <translation>Nota rapida… si salva mentre scrivi.</translation>
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
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>Start the timer.</extracomment>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>Set the timer back to its beginning.</extracomment>
        <translation>Azzera</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>A button of the script: “Edit” begins to change it, “Done” ends that.
----------
The time of the timer is over.</extracomment>
        <translation>Fine</translation>
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
        <translation>Il tempo resta visibile accanto al notch chiuso.</translation>
    </message>
    <message>
        <source>Fennivar’s notch is on, so Kestrune is paused.</source>
        <translation>Il notch di Fennivar è attivo, quindi Kestrune è in pausa.</translation>
    </message>
    <message>
        <source>Turn off Notch in Fennivar to use Kestrune.</source>
        <translation>Disattiva il notch in Fennivar per usare Kestrune.</translation>
    </message>
    <message>
        <source>Home</source>
        <extracomment>The page that the notch opens with, like that of a telephone.</extracomment>
        <translation>Home</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>In riproduzione</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Appunti</translation>
    </message>
    <message>
        <source>Screenshots</source>
        <translation>Screenshot</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Shelf</source>
        <extracomment>A place where files are put down for a while.</extracomment>
        <translation>Mensola</translation>
    </message>
    <message>
        <source>AI Usage</source>
        <translation>Uso dell’IA</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Meteo</translation>
    </message>
    <message>
        <source>Stocks</source>
        <extracomment>The prices of shares.</extracomment>
        <translation>Borsa</translation>
    </message>
    <message>
        <source>Teleprompter</source>
        <translation>Teleprompter</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Specchio</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>Processor, memory, disk and battery of this computer.</extracomment>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Greeting and date</source>
        <translation>Saluto e data</translation>
    </message>
    <message>
        <source>Today&apos;s events</source>
        <translation>Eventi di oggi</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Promemoria</translation>
    </message>
    <message>
        <source>Latest copies</source>
        <translation>Ultime copie</translation>
    </message>
    <message>
        <source>Latest screenshots</source>
        <translation>Ultimi screenshot</translation>
    </message>
    <message>
        <source>Hidden</source>
        <extracomment>Where a block of Home stands: nowhere. The others are its three columns.</extracomment>
        <translation>Nascosto</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sinistra</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Destra</translation>
    </message>
    <message>
        <source>On hover</source>
        <extracomment>Completes “Open the notch”: when the pointer rests on it.</extracomment>
        <translation>Al passaggio</translation>
    </message>
    <message>
        <source>On click</source>
        <translation>Al clic</translation>
    </message>
    <message>
        <source>More tools at fennivar.example</source>
        <translation>Altro su fennivar.example</translation>
    </message>
    <message>
        <source>this app</source>
        <extracomment>Stands for the name of the program where it has none.</extracomment>
        <translation>questa app</translation>
    </message>
    <message>
        <source>Copy something and it appears here.
Passwords from password managers are never saved.</source>
        <translation>Copia qualcosa e apparirà qui.
Le password dei gestori di password non vengono mai salvate.</translation>
    </message>
    <message>
        <source>Clipboard history is off.
Turn it on in Settings.</source>
        <translation>La cronologia degli appunti è disattivata.
Attivala in Impostazioni.</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Cancella cronologia</translation>
    </message>
    <message>
        <source>Nothing matches.</source>
        <translation>Nessun risultato.</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>In the menu of an entry: delete it from the history.</extracomment>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Copied</source>
        <extracomment>Shown in the place of what was just copied again.</extracomment>
        <translation>Copiato</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>What an empty search field says, and the button that looks for a city.</extracomment>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>What the list shows: copies of every kind.</extracomment>
        <translation>Tutto</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>What the list shows: the copies that are texts.</extracomment>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Immagini</translation>
    </message>
    <message>
        <source>PDFs</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>The title of a copied picture, before its size.</extracomment>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>Connect Codex or Claude Code to see your limits.</source>
        <translation>Connetti Codex o Claude Code per vedere i tuoi limiti.</translation>
    </message>
    <message>
        <source>Reads the plan limits that Codex CLI saves in ~/.codex on this Mac.</source>
        <translation>Legge i limiti del tuo piano che Codex CLI salva in ~/.codex su questo computer.</translation>
    </message>
    <message>
        <source>Adds up the tokens that Claude Code logs in ~/.claude on this Mac. Anthropic does not store your remaining limit locally.</source>
        <translation>Somma i token che Claude Code registra in ~/.claude su questo computer. Anthropic non salva in locale il limite che ti resta.</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Ultimi 7 giorni</translation>
    </message>
    <message>
        <source>Nothing leaves your Mac.</source>
        <translation>Nulla lascia il tuo computer.</translation>
    </message>
    <message>
        <source>Read again</source>
        <extracomment>On a round button: read the logs once more.</extracomment>
        <translation>Rileggi</translation>
    </message>
    <message>
        <source>Connect</source>
        <extracomment>A button: begin to read the usage of a program.</extracomment>
        <translation>Connetti</translation>
    </message>
    <message numerus="yes">
        <source>%1 tokens</source>
        <extracomment>%1 is the number of tokens, the pieces of text that a language model counts in.</extracomment>
        <translation>
            <numerusform>%1 token</numerusform>
            <numerusform>%1 token</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln% left</source>
        <extracomment>What is left of a limit, in per cent.</extracomment>
        <translation>
            <numerusform>%Ln% residuo</numerusform>
            <numerusform>%Ln% residuo</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lettura…</translation>
    </message>
    <message>
        <source>No Codex activity found yet. Use Codex once and it appears here.</source>
        <translation>Ancora nessuna attività di Codex. Usa Codex una volta e apparirà qui.</translation>
    </message>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is a time, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>Aggiornato: %1</translation>
    </message>
    <message>
        <source>5-hour window</source>
        <extracomment>The name of a limit that holds for five hours.</extracomment>
        <translation>Periodo di 5 ore</translation>
    </message>
    <message>
        <source>Weekly</source>
        <extracomment>The name of a limit that holds for a week.</extracomment>
        <translation>Settimanale</translation>
    </message>
    <message>
        <source>No Claude Code activity found.</source>
        <translation>Nessuna attività di Claude Code.</translation>
    </message>
    <message>
        <source>%1% of your budget</source>
        <extracomment>%1 is a number. There is little room.</extracomment>
        <translation>%1% del tuo budget</translation>
    </message>
    <message>
        <source>%1% of your busiest block this week</source>
        <extracomment>%1 is a number; a block is five hours of work. There is little room.</extracomment>
        <translation>%1% del blocco di picco settimanale</translation>
    </message>
    <message>
        <source>This 5-hour block</source>
        <translation>Questo blocco di 5 ore</translation>
    </message>
    <message>
        <source>Resets: %1</source>
        <extracomment>When a limit begins anew; %1 is a time, such as “14:05” or “Mon 14:05”. There is little room.</extracomment>
        <translation>Rinnovo: %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>%1 is a number, with decimals where it is the change of a share’s price.</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Drop files here to keep them handy.
Drag them out anywhere, or AirDrop them.</source>
        <translation>Trascina qui i file per averli a portata di mano.
Poi trascinali dove vuoi o inviali a un dispositivo.</translation>
    </message>
    <message>
        <source>Allow %1 to read your screenshots folder in
System Settings › Privacy &amp; Security › Files and Folders.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>Consenti a %1 di leggere la cartella degli screenshot:
i permessi della cartella lo impediscono.</translation>
    </message>
    <message>
        <source>Take a screenshot (⇧⌘4) and it appears here.
Drag it into any app, or right-click for more.</source>
        <translation>Fai uno screenshot (Stamp) e apparirà qui.
Trascinalo in un’app o usa il tasto destro per altre opzioni.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>A button that opens the settings of the desktop.</extracomment>
        <translation>Apri impostazioni</translation>
    </message>
    <message>
        <source>Click to open · drag into any app · right-click to copy, AirDrop or add to the Shelf.</source>
        <translation>Clic: apri · trascina in un’app · clic destro: copia, invia o Mensola</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Mostra nella cartella</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>Invia a un dispositivo</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>A button: take all files off the shelf.</extracomment>
        <translation>Svuota</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Take a file off the shelf; the file itself stays where it is.</extracomment>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Paste your script here. It scrolls right under the camera so you keep eye contact.</source>
        <translation>Incolla qui il tuo copione. Scorre proprio sotto la fotocamera, così mantieni il contatto visivo.</translation>
    </message>
    <message>
        <source>Script</source>
        <extracomment>Name of the field for the text that is read aloud.</extracomment>
        <translation>Copione</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>A button: scroll the script from its beginning again.</extracomment>
        <translation>Ricomincia</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>How fast the script scrolls.</extracomment>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Text %1</source>
        <extracomment>%1 is the size of the letters in points. There is little room.</extracomment>
        <translation>Testo %1</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Testo più piccolo</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Testo più grande</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Add to Shelf</source>
        <translation>Metti sulla mensola</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>In the menu of a screenshot: copy the picture.</extracomment>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Type the symbols that you want to follow.</source>
        <translation>Scrivi i simboli che vuoi seguire.</translation>
    </message>
    <message>
        <source>Symbols, separated by commas (AAPL, TSLA, ^GSPC, BTC-USD)</source>
        <translation>Simboli separati da virgole (AAPL, TSLA, ^GSPC, BTC-USD)</translation>
    </message>
    <message>
        <source>Delayed quotes from Yahoo Finance.</source>
        <translation>Quotazioni differite di Yahoo Finance.</translation>
    </message>
    <message>
        <source>Edit symbols</source>
        <translation>Modifica simboli</translation>
    </message>
    <message>
        <source>Choose a city to see its weather.</source>
        <translation>Scegli una città per vederne il meteo.</translation>
    </message>
    <message>
        <source>City</source>
        <extracomment>What the empty field for the name of a city says.</extracomment>
        <translation>Città</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Usa la mia posizione</translation>
    </message>
    <message>
        <source>Change city</source>
        <translation>Cambia città</translation>
    </message>
    <message>
        <source>Forecast by Open-Meteo. Only the city&apos;s coordinates are sent.</source>
        <translation>Previsioni di Open-Meteo. Vengono inviate solo le coordinate della città.</translation>
    </message>
    <message>
        <source>Weather is not available right now.</source>
        <translation>Il meteo non è disponibile al momento.</translation>
    </message>
    <message>
        <source>City not found.</source>
        <translation>Città non trovata.</translation>
    </message>
    <message>
        <source>My location</source>
        <extracomment>In the place of a city’s name.</extracomment>
        <translation>La mia posizione</translation>
    </message>
    <message>
        <source>Location not available. Type a city instead.</source>
        <translation>Posizione non disponibile. Scrivi una città.</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <extracomment>%1 is a list of the symbols of shares.</extracomment>
        <translation>Non trovato: %1</translation>
    </message>
    <message>
        <source>Wind %1 mph</source>
        <extracomment>%1 is a speed in miles an hour.</extracomment>
        <translation>Vento %1 mph</translation>
    </message>
    <message>
        <source>Wind %1 km/h</source>
        <extracomment>%1 is a speed in kilometres an hour.</extracomment>
        <translation>Vento %1 km/h</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Oggi</translation>
    </message>
    <message>
        <source>Allow %1 to control Music or Spotify in
System Settings › Privacy &amp; Security › Automation.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>Consenti a %1 di controllare i lettori nelle
impostazioni di privacy del desktop.</translation>
    </message>
    <message>
        <source>Play something in Music or Spotify
and it shows up here.</source>
        <translation>Riproduci qualcosa in un lettore multimediale
e apparirà qui.</translation>
    </message>
    <message>
        <source>Previous</source>
        <extracomment>The previous song.</extracomment>
        <translation>Precedente</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>The next song.</extracomment>
        <translation>Successivo</translation>
    </message>
    <message>
        <source>charging</source>
        <extracomment>Of the battery, after its level: “80% · charging”.</extracomment>
        <translation>in carica</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batteria</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>The processor and how busy it is. There is little room.</extracomment>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>The working memory (RAM).</extracomment>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is an amount with its unit, such as 12.3 GB.</extracomment>
        <translation>%1 liberi</translation>
    </message>
    <message>
        <source>No camera found.</source>
        <translation>Nessuna fotocamera trovata.</translation>
    </message>
    <message>
        <source>Allow %1 to use the camera in
System Settings › Privacy &amp; Security › Camera.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>Consenti a %1 di usare la fotocamera nelle
impostazioni di privacy del desktop.</translation>
    </message>
    <message>
        <source>Events</source>
        <extracomment>Heading of the list of appointments.</extracomment>
        <translation>Eventi</translation>
    </message>
    <message>
        <source>Allow Calendar</source>
        <translation>Consenti accesso</translation>
    </message>
    <message>
        <source>Nothing else today or tomorrow.</source>
        <translation>Nient’altro oggi né domani.</translation>
    </message>
    <message>
        <source>Allow Reminders</source>
        <translation>Consenti accesso</translation>
    </message>
    <message>
        <source>All done</source>
        <extracomment>Instead of a list: no reminder is left.</extracomment>
        <translation>Tutto fatto</translation>
    </message>
    <message>
        <source>Nothing else today.</source>
        <translation>Nient’altro oggi.</translation>
    </message>
    <message>
        <source>Complete</source>
        <extracomment>A verb, on the circle before a reminder: mark it as done.</extracomment>
        <translation>Completa</translation>
    </message>
    <message>
        <source>Event</source>
        <extracomment>The title of an appointment that has none.</extracomment>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Domani</translation>
    </message>
    <message>
        <source>All day</source>
        <extracomment>In the place of an appointment’s time.</extracomment>
        <translation>Tutto il giorno</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ieri</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Sposta su</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Sposta giù</translation>
    </message>
    <message>
        <source>Want more? Meet Fennivar</source>
        <translation>Vuoi di più? Scopri Fennivar</translation>
    </message>
    <message>
        <source>Kestrune is one piece of Fennivar, the all-in-one app that makes your Mac work the way it should.</source>
        <translation>Kestrune è una parte di Fennivar, l’app tutto in uno che fa funzionare il tuo computer come dovrebbe.</translation>
    </message>
    <message>
        <source>Snap windows into place with a key or a drag</source>
        <translation>Disponi le finestre con un tasto o trascinandole</translation>
    </message>
    <message>
        <source>Find files, apps and settings from one field</source>
        <translation>Trova file, app e impostazioni da un solo campo</translation>
    </message>
    <message>
        <source>See what fills your disk and free it up</source>
        <translation>Scopri cosa riempie il disco e libera spazio</translation>
    </message>
    <message>
        <source>Keep an eye on the battery and make it last</source>
        <translation>Tieni d’occhio la batteria e falla durare</translation>
    </message>
    <message>
        <source>Discover Fennivar ↗</source>
        <translation>Scopri Fennivar ↗</translation>
    </message>
    <message>
        <source>Opening</source>
        <extracomment>Heading of the settings that say how the notch opens.</extracomment>
        <translation>Apertura</translation>
    </message>
    <message>
        <source>Open the notch</source>
        <extracomment>Followed by the choice of “On hover” and “On click”.</extracomment>
        <translation>Apri il notch</translation>
    </message>
    <message>
        <source>Hover delay</source>
        <extracomment>How long the pointer rests on the notch before it opens; beside a slider.</extracomment>
        <translation>Ritardo al passaggio</translation>
    </message>
    <message>
        <source>Open and close with ⌃⌥⌘N</source>
        <translation>Apri e chiudi con Ctrl+Alt+Super+N</translation>
    </message>
    <message>
        <source>Show the song or timer beside the closed notch</source>
        <translation>Mostra il brano o il timer accanto al notch chiuso</translation>
    </message>
    <message>
        <source>Show new screenshots beside the notch</source>
        <translation>Mostra i nuovi screenshot accanto al notch</translation>
    </message>
    <message>
        <source>Displays</source>
        <extracomment>Heading of the settings that are about monitors.</extracomment>
        <translation>Schermi</translation>
    </message>
    <message>
        <source>Show on every display</source>
        <translation>Mostra su ogni schermo</translation>
    </message>
    <message>
        <source>Draw a notch on displays without one</source>
        <translation>Disegna un notch sugli schermi che ne sono privi</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privacy</translation>
    </message>
    <message>
        <source>Everything stays on this Mac. Weather asks Open-Meteo for your city&apos;s forecast and Stocks asks Yahoo Finance for quotes; nothing else goes online.</source>
        <translation>Tutto resta su questo computer. Meteo chiede a Open-Meteo le previsioni per la tua città e Borsa chiede le quotazioni a Yahoo Finance; nient’altro va online.</translation>
    </message>
    <message>
        <source>Keep a clipboard history</source>
        <translation>Conserva la cronologia degli appunti</translation>
    </message>
    <message>
        <source>Read Codex usage (~/.codex)</source>
        <translation>Leggi l’uso di Codex (~/.codex)</translation>
    </message>
    <message>
        <source>Read Claude Code usage (~/.claude)</source>
        <translation>Leggi l’uso di Claude Code (~/.claude)</translation>
    </message>
    <message>
        <source>Temperatures in °F</source>
        <translation>Temperature in °F</translation>
    </message>
    <message>
        <source>Home screen</source>
        <translation>Schermata Home</translation>
    </message>
    <message>
        <source>Restore default layout</source>
        <translation>Ripristina layout predefinito</translation>
    </message>
    <message>
        <source>Leave it at 0 to compare with your busiest block of the week. Anthropic does not publish limits in tokens, so set your own if you know it.</source>
        <translation>Lascia 0 per confrontare con il tuo blocco di picco della settimana. Anthropic non pubblica i limiti in token; imposta il tuo se lo conosci.</translation>
    </message>
    <message>
        <source>Claude 5-hour budget (tokens)</source>
        <translation>Budget Claude per 5 ore (token)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Strumenti</translation>
    </message>
    <message>
        <source>Kestrune Settings</source>
        <translation>Impostazioni di Kestrune</translation>
    </message>
    <message>
        <source>This copy gets its updates with its package, or from whoever built it.</source>
        <translation>Questa copia si aggiorna con il suo pacchetto o tramite chi l’ha compilata.</translation>
    </message>
    <message>
        <source>Open Kestrune at login</source>
        <translation>Apri Kestrune all’accesso</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Installa gli aggiornamenti automaticamente</translation>
    </message>
    <message>
        <source>Open Notch</source>
        <translation>Apri il notch</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Impostazioni…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Cerca aggiornamenti…</translation>
    </message>
    <message>
        <source>Get more tools: Fennivar ↗</source>
        <translation>Altri strumenti: Fennivar ↗</translation>
    </message>
    <message>
        <source>Quit Kestrune</source>
        <translation>Esci da Kestrune</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>%1 is a number of milliseconds.</extracomment>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Kestrune then looks once a day, downloads what is new and asks before it is installed.</source>
        <translation>Kestrune cerca allora una volta al giorno, scarica le novità e chiede prima di installarle.</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Aggiornamento software</translation>
    </message>
    <message>
        <source>The list of releases is not signed by Kestrune’s makers, so it was ignored.</source>
        <translation>L’elenco delle versioni non è firmato dagli autori di Kestrune, quindi è stato ignorato.</translation>
    </message>
    <message>
        <source>The list of releases could not be read. Are you online?</source>
        <translation>Impossibile leggere l’elenco delle versioni. Sei online?</translation>
    </message>
    <message>
        <source>The list of releases is older than one seen before, so it was ignored.</source>
        <translation>L’elenco delle versioni è più vecchio di uno già visto, quindi è stato ignorato.</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Are you online?</source>
        <translation>Impossibile scaricare l’aggiornamento. Sei online?</translation>
    </message>
    <message>
        <source>The update is not what Kestrune’s makers signed, so it was not kept.</source>
        <translation>L’aggiornamento non è quello firmato dagli autori di Kestrune, quindi non è stato conservato.</translation>
    </message>
    <message>
        <source>The update could not be saved. Is the disk full?</source>
        <translation>Impossibile salvare l’aggiornamento. Il disco è pieno?</translation>
    </message>
    <message>
        <source>The downloaded update was changed or removed.</source>
        <translation>L’aggiornamento scaricato è stato modificato o rimosso.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Ricerca di aggiornamenti…</translation>
    </message>
    <message>
        <source>Kestrune is up to date</source>
        <translation>Kestrune è aggiornato</translation>
    </message>
    <message>
        <source>Kestrune %1 is available</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Kestrune %1 è disponibile</translation>
    </message>
    <message>
        <source>Downloading Kestrune %1…</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Download di Kestrune %1…</translation>
    </message>
    <message>
        <source>Kestrune %1 is ready to install</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Kestrune %1 è pronto per l’installazione</translation>
    </message>
    <message>
        <source>Kestrune could not be updated</source>
        <translation>Impossibile aggiornare Kestrune</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>La versione %1 è la più recente.</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Hai la versione %1.</translation>
    </message>
    <message>
        <source>It was checked: it comes from Kestrune’s makers.</source>
        <translation>Verificato: proviene dagli autori di Kestrune.</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>A verb, on a button.</extracomment>
        <translation>Scarica</translation>
    </message>
    <message>
        <source>Install…</source>
        <translation>Installa…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>A button that closes the window of an update.</extracomment>
        <translation>Più tardi</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Bound to %1</source>
        <extracomment>%1 is a combination of keys, as the desktop writes it.</extracomment>
        <translation>Assegnato a %1</translation>
    </message>
    <message>
        <source>Another program has these keys. In the desktop’s settings, bind others to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>Un altro programma usa questi tasti. Nelle impostazioni del desktop assegnane altri a: %1</translation>
    </message>
    <message>
        <source>No keys are bound. In the desktop’s settings, bind some to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>Nessun tasto è assegnato. Nelle impostazioni del desktop assegnane alcuni a: %1</translation>
    </message>
    <message>
        <source>The list of releases has expired, so it was ignored. Is the clock set right?</source>
        <translation>L’elenco delle versioni è scaduto, quindi è stato ignorato. L’orologio è giusto?</translation>
    </message>
    <message>
        <source>The list of releases is dated in the future, so it was ignored. Is the clock set right?</source>
        <translation>L’elenco delle versioni ha una data futura, quindi è stato ignorato. L’orologio è giusto?</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>The name of a calendar in quotation marks.</extracomment>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>Could not be read in full: %1</source>
        <extracomment>%1 is the name of a calendar in quotation marks, or several with commas between them.</extracomment>
        <translation>Impossibile leggere per intero: %1</translation>
    </message>
    <message>
        <source>Renewed; figures of %1</source>
        <extracomment>A limit has begun anew since it was read; %1 is when that was, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>Rinnovato; dati di %1</translation>
    </message>
    <message>
        <source>All day, since %1</source>
        <extracomment>In the place of an appointment’s time; %1 is the day before today when it began, such as “Mon”.</extracomment>
        <translation>Tutto il giorno, da %1</translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>When an appointment began; %1 is a day before today and a time, such as “Mon 14:05”.</extracomment>
        <translation>Da %1</translation>
    </message>
    <message>
        <source>Hide over full-screen windows</source>
        <extracomment>The closed notch; displays with a camera housing keep theirs.</extracomment>
        <translation>Nascondi sopra le finestre a schermo intero</translation>
    </message>
    <message>
        <source>Panels at the top edge</source>
        <extracomment>Other programs&apos; bars along the top of the screen; followed by a choice of where the notch is.</extracomment>
        <translation>Pannelli al bordo superiore</translation>
    </message>
    <message>
        <source>Automatic</source>
        <extracomment>Completes “Panels at the top edge”: below them, but around a camera.</extracomment>
        <translation>Automatico</translation>
    </message>
    <message>
        <source>Notch over them</source>
        <extracomment>Completes “Panels at the top edge”: the notch lies over them.</extracomment>
        <translation>Notch sopra</translation>
    </message>
    <message>
        <source>Notch below them</source>
        <extracomment>Completes “Panels at the top edge”: the notch hangs below them.</extracomment>
        <translation>Notch sotto</translation>
    </message>
    <message>
        <source>Press the keys…</source>
        <translation>Premi i tasti…</translation>
    </message>
    <message>
        <source>Keys that open and close the notch: %1</source>
        <translation>Tasti che aprono e chiudono il notch: %1</translation>
    </message>
    <message>
        <source>Keys</source>
        <extracomment>Beside a button that shows the keys of the hot key.</extracomment>
        <translation>Tasti</translation>
    </message>
    <message>
        <source>Open and close with %1</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>Apri e chiudi con %1</translation>
    </message>
    <message>
        <source>Pin</source>
        <extracomment>In the menu of an entry of the clipboard history: keep it until it is deleted.</extracomment>
        <translation>Fissa</translation>
    </message>
    <message>
        <source>Pinned</source>
        <extracomment>Said of an entry of the clipboard history that is kept until the user deletes it.</extracomment>
        <translation>Fissato</translation>
    </message>
    <message>
        <source>Cut</source>
        <extracomment>In the menu of a text field, as “Copy”, “Paste” and “Select All”.</extracomment>
        <translation>Taglia</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Incolla</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Play and pause the teleprompter with Ctrl+Alt+Super+P</source>
        <translation>Avvia e sospendi il teleprompter con Ctrl+Alt+Super+P</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Sposta nel cestino</translation>
    </message>
    <message>
        <source>Choose the camera</source>
        <translation>Scegli la fotocamera</translation>
    </message>
    <message>
        <source>The desktop will ask you for the camera.</source>
        <translation>Il desktop ti chiederà l’accesso alla fotocamera.</translation>
    </message>
    <message>
        <source>Turn On Camera</source>
        <translation>Accendi la fotocamera</translation>
    </message>
    <message>
        <source>You refused the camera before, and the desktop remembers it.
Allow it in the desktop’s privacy settings.</source>
        <translation>Hai già rifiutato la fotocamera e il desktop lo ricorda.
Consentila nelle sue impostazioni sulla privacy.</translation>
    </message>
    <message>
        <source>Cannot be reached now</source>
        <translation>Non raggiungibile ora</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>How long the rest of the script takes to scroll past. %1 is a time such as 3:05.</extracomment>
        <translation>Mancano %1</translation>
    </message>
    <message>
        <source>Play or pause the teleprompter</source>
        <extracomment>What a hot key does, in the desktop&apos;s settings.</extracomment>
        <translation>Avvia o sospendi il teleprompter</translation>
    </message>
    <message>
        <source>To send files, KDE Connect or GSConnect has to run.</source>
        <translation>Per inviare file, KDE Connect o GSConnect deve essere in esecuzione.</translation>
    </message>
    <message>
        <source>Sending to %1…</source>
        <translation>Invio a %1…</translation>
    </message>
    <message>
        <source>On the way to %1.</source>
        <extracomment>The files have been handed over to the service that sends them.</extracomment>
        <translation>In viaggio verso %1.</translation>
    </message>
    <message>
        <source>Could not be sent to %1.</source>
        <translation>Impossibile inviare a %1.</translation>
    </message>
    <message>
        <source>No paired device is in reach.</source>
        <translation>Nessun dispositivo abbinato è raggiungibile.</translation>
    </message>
    <message numerus="yes">
        <source>Send %Ln files to %1</source>
        <extracomment>An entry of a menu. %1 is the name of a phone or of another computer.</extracomment>
        <translation>
            <numerusform>Invia %Ln file a %1</numerusform>
            <numerusform>Invia %Ln file a %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash.</source>
        <translation>Impossibile spostare %1 nel cestino.</translation>
    </message>
    <message>
        <source>Default Camera</source>
        <extracomment>The first of the cameras to choose from: whichever the desktop takes.</extracomment>
        <translation>Fotocamera predefinita</translation>
    </message>
    <message>
        <source>Minutes</source>
        <extracomment>What the empty field for the length of a timer says.</extracomment>
        <translation>Minuti</translation>
    </message>
    <message>
        <source>One minute less</source>
        <translation>Un minuto in meno</translation>
    </message>
    <message>
        <source>One minute more</source>
        <translation>Un minuto in più</translation>
    </message>
    <message>
        <source>The time is up.</source>
        <extracomment>The timer has run down.</extracomment>
        <translation>Tempo scaduto.</translation>
    </message>
    <message>
        <source>As of %1</source>
        <extracomment>Beside figures that could not be fetched anew; %1 is when they came, such as “14:05” or “24.12.26 14:05”.</extracomment>
        <translation>Aggiornato: %1</translation>
    </message>
    <message>
        <source>Quotes are not available right now.</source>
        <extracomment>The prices of shares, which a server on the web tells.</extracomment>
        <translation>Le quotazioni non sono disponibili al momento.</translation>
    </message>
</context>
</TS>
