<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>notch</name>
    <message>
        <source>Unpin</source>
        <extracomment>Let the notch close by itself again; the opposite of “Keep open”.</extracomment>
        <translation>Desanclar</translation>
    </message>
    <message>
        <source>Keep open</source>
        <translation>Mantener abierto</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Good night</source>
        <translation>Buenas noches</translation>
    </message>
    <message>
        <source>Good morning</source>
        <translation>Buenos días</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>Buenas tardes</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>Buenas noches</translation>
    </message>
    <message>
        <source>Choose what Home shows in Settings › Home screen.</source>
        <translation>Elige lo que muestra Inicio en Ajustes › Pantalla de inicio.</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>A note to oneself, such as one jots down.</extracomment>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Quick note… it saves as you type.</source>
        <translation>Nota rápida… se guarda mientras escribes.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Timer</source>
        <translation>Temporizador</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>Start the timer.</extracomment>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>Set the timer back to its beginning.</extracomment>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>A button of the script: “Edit” begins to change it, “Done” ends that.
----------
The time of the timer is over.</extracomment>
        <translation>Listo</translation>
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
        <translation>El tiempo sigue visible junto a la muesca cerrada.</translation>
    </message>
    <message>
        <source>Fennivar’s notch is on, so Kestrune is paused.</source>
        <translation>La muesca de Fennivar está activada, así que Kestrune está en pausa.</translation>
    </message>
    <message>
        <source>Turn off Notch in Fennivar to use Kestrune.</source>
        <translation>Desactiva la muesca en Fennivar para usar Kestrune.</translation>
    </message>
    <message>
        <source>Home</source>
        <extracomment>The page that the notch opens with, like that of a telephone.</extracomment>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>Ahora suena</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Portapapeles</translation>
    </message>
    <message>
        <source>Screenshots</source>
        <translation>Capturas</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Shelf</source>
        <extracomment>A place where files are put down for a while.</extracomment>
        <translation>Estante</translation>
    </message>
    <message>
        <source>AI Usage</source>
        <translation>Uso de IA</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Stocks</source>
        <extracomment>The prices of shares.</extracomment>
        <translation>Bolsa</translation>
    </message>
    <message>
        <source>Teleprompter</source>
        <translation>Teleprompter</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Espejo</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>Processor, memory, disk and battery of this computer.</extracomment>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Greeting and date</source>
        <translation>Saludo y fecha</translation>
    </message>
    <message>
        <source>Today&apos;s events</source>
        <translation>Eventos de hoy</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Recordatorios</translation>
    </message>
    <message>
        <source>Latest copies</source>
        <translation>Últimas copias</translation>
    </message>
    <message>
        <source>Latest screenshots</source>
        <translation>Últimas capturas</translation>
    </message>
    <message>
        <source>Hidden</source>
        <extracomment>Where a block of Home stands: nowhere. The others are its three columns.</extracomment>
        <translation>Oculto</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>On hover</source>
        <extracomment>Completes “Open the notch”: when the pointer rests on it.</extracomment>
        <translation>Al apuntar</translation>
    </message>
    <message>
        <source>On click</source>
        <translation>Al hacer clic</translation>
    </message>
    <message>
        <source>More tools at fennivar.example</source>
        <translation>Más en fennivar.example</translation>
    </message>
    <message>
        <source>this app</source>
        <extracomment>Stands for the name of the program where it has none.</extracomment>
        <translation>esta app</translation>
    </message>
    <message>
        <source>Copy something and it appears here.
Passwords from password managers are never saved.</source>
        <translation>Copia algo y aparecerá aquí.
Las contraseñas de los gestores de contraseñas nunca se guardan.</translation>
    </message>
    <message>
        <source>Clipboard history is off.
Turn it on in Settings.</source>
        <translation>El historial del portapapeles está desactivado.
Actívalo en Ajustes.</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Borrar historial</translation>
    </message>
    <message>
        <source>Nothing matches.</source>
        <translation>Sin resultados.</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>In the menu of an entry: delete it from the history.</extracomment>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Copied</source>
        <extracomment>Shown in the place of what was just copied again.</extracomment>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>What an empty search field says, and the button that looks for a city.</extracomment>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>What the list shows: copies of every kind.</extracomment>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>What the list shows: the copies that are texts.</extracomment>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Enlaces</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>PDFs</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>The title of a copied picture, before its size.</extracomment>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Connect Codex or Claude Code to see your limits.</source>
        <translation>Conecta Codex o Claude Code para ver tus límites.</translation>
    </message>
    <message>
        <source>Reads the plan limits that Codex CLI saves in ~/.codex on this Mac.</source>
        <translation>Lee los límites de tu plan que Codex CLI guarda en ~/.codex en este equipo.</translation>
    </message>
    <message>
        <source>Adds up the tokens that Claude Code logs in ~/.claude on this Mac. Anthropic does not store your remaining limit locally.</source>
        <translation>Suma los tokens que Claude Code registra en ~/.claude en este equipo. Anthropic no guarda en local el límite que te queda.</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Últimos 7 días</translation>
    </message>
    <message>
        <source>Nothing leaves your Mac.</source>
        <translation>Nada sale de tu equipo.</translation>
    </message>
    <message>
        <source>Read again</source>
        <extracomment>On a round button: read the logs once more.</extracomment>
        <translation>Volver a leer</translation>
    </message>
    <message>
        <source>Connect</source>
        <extracomment>A button: begin to read the usage of a program.</extracomment>
        <translation>Conectar</translation>
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
            <numerusform>%Ln % restante</numerusform>
            <numerusform>%Ln % restante</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>No Codex activity found yet. Use Codex once and it appears here.</source>
        <translation>Aún no hay actividad de Codex. Usa Codex una vez y aparecerá aquí.</translation>
    </message>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is a time, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>Actualizado: %1</translation>
    </message>
    <message>
        <source>5-hour window</source>
        <extracomment>The name of a limit that holds for five hours.</extracomment>
        <translation>Periodo de 5&#xa0;h</translation>
    </message>
    <message>
        <source>Weekly</source>
        <extracomment>The name of a limit that holds for a week.</extracomment>
        <translation>Semanal</translation>
    </message>
    <message>
        <source>No Claude Code activity found.</source>
        <translation>No hay actividad de Claude Code.</translation>
    </message>
    <message>
        <source>%1% of your budget</source>
        <extracomment>%1 is a number. There is little room.</extracomment>
        <translation>%1&#xa0;% de tu presupuesto</translation>
    </message>
    <message>
        <source>%1% of your busiest block this week</source>
        <extracomment>%1 is a number; a block is five hours of work. There is little room.</extracomment>
        <translation>%1&#xa0;% de tu mayor bloque semanal</translation>
    </message>
    <message>
        <source>This 5-hour block</source>
        <translation>Este bloque de 5&#xa0;h</translation>
    </message>
    <message>
        <source>Resets: %1</source>
        <extracomment>When a limit begins anew; %1 is a time, such as “14:05” or “Mon 14:05”. There is little room.</extracomment>
        <translation>Se renueva: %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>%1 is a number, with decimals where it is the change of a share’s price.</extracomment>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Drop files here to keep them handy.
Drag them out anywhere, or AirDrop them.</source>
        <translation>Suelta archivos aquí para tenerlos a mano.
Arrástralos adonde quieras o envíalos a un dispositivo.</translation>
    </message>
    <message>
        <source>Allow %1 to read your screenshots folder in
System Settings › Privacy &amp; Security › Files and Folders.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>Permite que %1 lea tu carpeta de capturas:
los permisos de la carpeta no lo dejan.</translation>
    </message>
    <message>
        <source>Take a screenshot (⇧⌘4) and it appears here.
Drag it into any app, or right-click for more.</source>
        <translation>Haz una captura de pantalla (Impr Pant) y aparecerá aquí.
Arrástrala a cualquier app o haz clic derecho para ver más.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>A button that opens the settings of the desktop.</extracomment>
        <translation>Abrir Ajustes</translation>
    </message>
    <message>
        <source>Click to open · drag into any app · right-click to copy, AirDrop or add to the Shelf.</source>
        <translation>Clic: abrir · arrastrar a una app · clic derecho: copiar, enviar o Estante</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>Enviar a un dispositivo</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>A button: take all files off the shelf.</extracomment>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Take a file off the shelf; the file itself stays where it is.</extracomment>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Paste your script here. It scrolls right under the camera so you keep eye contact.</source>
        <translation>Pega tu guion aquí. Se desplaza justo debajo de la cámara para que mantengas el contacto visual.</translation>
    </message>
    <message>
        <source>Script</source>
        <extracomment>Name of the field for the text that is read aloud.</extracomment>
        <translation>Guion</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>A button: scroll the script from its beginning again.</extracomment>
        <translation>Reiniciar</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>How fast the script scrolls.</extracomment>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Text %1</source>
        <extracomment>%1 is the size of the letters in points. There is little room.</extracomment>
        <translation>Texto %1</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Texto más pequeño</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Texto más grande</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Add to Shelf</source>
        <translation>Añadir al estante</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>In the menu of a screenshot: copy the picture.</extracomment>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Type the symbols that you want to follow.</source>
        <translation>Escribe los símbolos que quieras seguir.</translation>
    </message>
    <message>
        <source>Symbols, separated by commas (AAPL, TSLA, ^GSPC, BTC-USD)</source>
        <translation>Símbolos separados por comas (AAPL, TSLA, ^GSPC, BTC-USD)</translation>
    </message>
    <message>
        <source>Delayed quotes from Yahoo Finance.</source>
        <translation>Cotizaciones con retraso de Yahoo Finance.</translation>
    </message>
    <message>
        <source>Edit symbols</source>
        <translation>Editar símbolos</translation>
    </message>
    <message>
        <source>Choose a city to see its weather.</source>
        <translation>Elige una ciudad para ver su tiempo.</translation>
    </message>
    <message>
        <source>City</source>
        <extracomment>What the empty field for the name of a city says.</extracomment>
        <translation>Ciudad</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Usar mi ubicación</translation>
    </message>
    <message>
        <source>Change city</source>
        <translation>Cambiar ciudad</translation>
    </message>
    <message>
        <source>Forecast by Open-Meteo. Only the city&apos;s coordinates are sent.</source>
        <translation>Previsión de Open-Meteo. Solo se envían las coordenadas de la ciudad.</translation>
    </message>
    <message>
        <source>Weather is not available right now.</source>
        <translation>El tiempo no está disponible en este momento.</translation>
    </message>
    <message>
        <source>City not found.</source>
        <translation>Ciudad no encontrada.</translation>
    </message>
    <message>
        <source>My location</source>
        <extracomment>In the place of a city’s name.</extracomment>
        <translation>Mi ubicación</translation>
    </message>
    <message>
        <source>Location not available. Type a city instead.</source>
        <translation>Ubicación no disponible. Escribe una ciudad.</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <extracomment>%1 is a list of the symbols of shares.</extracomment>
        <translation>No encontrado: %1</translation>
    </message>
    <message>
        <source>Wind %1 mph</source>
        <extracomment>%1 is a speed in miles an hour.</extracomment>
        <translation>Viento %1&#xa0;mph</translation>
    </message>
    <message>
        <source>Wind %1 km/h</source>
        <extracomment>%1 is a speed in kilometres an hour.</extracomment>
        <translation>Viento %1&#xa0;km/h</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Allow %1 to control Music or Spotify in
System Settings › Privacy &amp; Security › Automation.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>Permite que %1 controle los reproductores en
los ajustes de privacidad del escritorio.</translation>
    </message>
    <message>
        <source>Play something in Music or Spotify
and it shows up here.</source>
        <translation>Reproduce algo en cualquier reproductor
y aparecerá aquí.</translation>
    </message>
    <message>
        <source>Previous</source>
        <extracomment>The previous song.</extracomment>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>The next song.</extracomment>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>charging</source>
        <extracomment>Of the battery, after its level: “80% · charging”.</extracomment>
        <translation>cargando</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
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
        <translation>%1 libres</translation>
    </message>
    <message>
        <source>No camera found.</source>
        <translation>No se encontró ninguna cámara.</translation>
    </message>
    <message>
        <source>Allow %1 to use the camera in
System Settings › Privacy &amp; Security › Camera.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>Permite que %1 use la cámara en
los ajustes de privacidad del escritorio.</translation>
    </message>
    <message>
        <source>Events</source>
        <extracomment>Heading of the list of appointments.</extracomment>
        <translation>Eventos</translation>
    </message>
    <message>
        <source>Allow Calendar</source>
        <translation>Permitir acceso</translation>
    </message>
    <message>
        <source>Nothing else today or tomorrow.</source>
        <translation>Nada más hoy ni mañana.</translation>
    </message>
    <message>
        <source>Allow Reminders</source>
        <translation>Permitir acceso</translation>
    </message>
    <message>
        <source>All done</source>
        <extracomment>Instead of a list: no reminder is left.</extracomment>
        <translation>Todo hecho</translation>
    </message>
    <message>
        <source>Nothing else today.</source>
        <translation>Nada más hoy.</translation>
    </message>
    <message>
        <source>Complete</source>
        <extracomment>A verb, on the circle before a reminder: mark it as done.</extracomment>
        <translation>Completar</translation>
    </message>
    <message>
        <source>Event</source>
        <extracomment>The title of an appointment that has none.</extracomment>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Mañana</translation>
    </message>
    <message>
        <source>All day</source>
        <extracomment>In the place of an appointment’s time.</extracomment>
        <translation>Todo el día</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Want more? Meet Fennivar</source>
        <translation>¿Quieres más? Conoce Fennivar</translation>
    </message>
    <message>
        <source>Kestrune is one piece of Fennivar, the all-in-one app that makes your Mac work the way it should.</source>
        <translation>Kestrune es una parte de Fennivar, la app todo en uno que hace que tu equipo funcione como debe.</translation>
    </message>
    <message>
        <source>Snap windows into place with a key or a drag</source>
        <translation>Coloca las ventanas con una tecla o arrastrándolas</translation>
    </message>
    <message>
        <source>Find files, apps and settings from one field</source>
        <translation>Encuentra archivos, apps y ajustes desde un solo campo</translation>
    </message>
    <message>
        <source>See what fills your disk and free it up</source>
        <translation>Mira qué llena tu disco y libera espacio</translation>
    </message>
    <message>
        <source>Keep an eye on the battery and make it last</source>
        <translation>Vigila la batería y haz que dure más</translation>
    </message>
    <message>
        <source>Discover Fennivar ↗</source>
        <translation>Descubrir Fennivar ↗</translation>
    </message>
    <message>
        <source>Opening</source>
        <extracomment>Heading of the settings that say how the notch opens.</extracomment>
        <translation>Apertura</translation>
    </message>
    <message>
        <source>Open the notch</source>
        <extracomment>Followed by the choice of “On hover” and “On click”.</extracomment>
        <translation>Abrir la muesca</translation>
    </message>
    <message>
        <source>Hover delay</source>
        <extracomment>How long the pointer rests on the notch before it opens; beside a slider.</extracomment>
        <translation>Retardo al apuntar</translation>
    </message>
    <message>
        <source>Open and close with ⌃⌥⌘N</source>
        <translation>Abrir y cerrar con Ctrl+Alt+Super+N</translation>
    </message>
    <message>
        <source>Show the song or timer beside the closed notch</source>
        <translation>Mostrar canción o temporizador junto a la muesca cerrada</translation>
    </message>
    <message>
        <source>Show new screenshots beside the notch</source>
        <translation>Mostrar las capturas nuevas junto a la muesca</translation>
    </message>
    <message>
        <source>Displays</source>
        <extracomment>Heading of the settings that are about monitors.</extracomment>
        <translation>Pantallas</translation>
    </message>
    <message>
        <source>Show on every display</source>
        <translation>Mostrar en todas las pantallas</translation>
    </message>
    <message>
        <source>Draw a notch on displays without one</source>
        <translation>Dibujar una muesca en las pantallas que no la tienen</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privacidad</translation>
    </message>
    <message>
        <source>Everything stays on this Mac. Weather asks Open-Meteo for your city&apos;s forecast and Stocks asks Yahoo Finance for quotes; nothing else goes online.</source>
        <translation>Todo se queda en este equipo. Tiempo pide a Open-Meteo la previsión de tu ciudad y Bolsa pide las cotizaciones a Yahoo Finance; nada más sale a internet.</translation>
    </message>
    <message>
        <source>Keep a clipboard history</source>
        <translation>Guardar el historial del portapapeles</translation>
    </message>
    <message>
        <source>Read Codex usage (~/.codex)</source>
        <translation>Leer el uso de Codex (~/.codex)</translation>
    </message>
    <message>
        <source>Read Claude Code usage (~/.claude)</source>
        <translation>Leer el uso de Claude Code (~/.claude)</translation>
    </message>
    <message>
        <source>Temperatures in °F</source>
        <translation>Temperaturas en °F</translation>
    </message>
    <message>
        <source>Home screen</source>
        <translation>Pantalla de inicio</translation>
    </message>
    <message>
        <source>Restore default layout</source>
        <translation>Restaurar disposición original</translation>
    </message>
    <message>
        <source>Leave it at 0 to compare with your busiest block of the week. Anthropic does not publish limits in tokens, so set your own if you know it.</source>
        <translation>Déjalo en 0 para comparar con tu mayor bloque de la semana. Anthropic no publica los límites en tokens; indica el tuyo si lo conoces.</translation>
    </message>
    <message>
        <source>Claude 5-hour budget (tokens)</source>
        <translation>Presupuesto Claude para 5&#xa0;h (tokens)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Kestrune Settings</source>
        <translation>Ajustes de Kestrune</translation>
    </message>
    <message>
        <source>This copy gets its updates with its package, or from whoever built it.</source>
        <translation>Esta copia se actualiza con su paquete o a través de quien la compiló.</translation>
    </message>
    <message>
        <source>Open Kestrune at login</source>
        <translation>Abrir Kestrune al iniciar sesión</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Instalar actualizaciones automáticamente</translation>
    </message>
    <message>
        <source>Open Notch</source>
        <translation>Abrir la muesca</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Get more tools: Fennivar ↗</source>
        <translation>Más herramientas: Fennivar ↗</translation>
    </message>
    <message>
        <source>Quit Kestrune</source>
        <translation>Salir de Kestrune</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>%1 is a number of milliseconds.</extracomment>
        <translation>%1&#xa0;ms</translation>
    </message>
    <message>
        <source>Kestrune then looks once a day, downloads what is new and asks before it is installed.</source>
        <translation>Kestrune busca entonces una vez al día, descarga lo nuevo y pregunta antes de instalarlo.</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Actualización de software</translation>
    </message>
    <message>
        <source>The list of releases is not signed by Kestrune’s makers, so it was ignored.</source>
        <translation>La lista de versiones no está firmada por los creadores de Kestrune, así que se ha ignorado.</translation>
    </message>
    <message>
        <source>The list of releases could not be read. Are you online?</source>
        <translation>No se ha podido leer la lista de versiones. ¿Tienes conexión?</translation>
    </message>
    <message>
        <source>The list of releases is older than one seen before, so it was ignored.</source>
        <translation>La lista de versiones es anterior a otra ya vista, así que se ha ignorado.</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Are you online?</source>
        <translation>No se ha podido descargar la actualización. ¿Tienes conexión?</translation>
    </message>
    <message>
        <source>The update is not what Kestrune’s makers signed, so it was not kept.</source>
        <translation>La actualización no es la que firmaron los creadores de Kestrune, así que no se ha conservado.</translation>
    </message>
    <message>
        <source>The update could not be saved. Is the disk full?</source>
        <translation>No se ha podido guardar la actualización. ¿Está lleno el disco?</translation>
    </message>
    <message>
        <source>The downloaded update was changed or removed.</source>
        <translation>La actualización descargada se ha modificado o eliminado.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Buscando actualizaciones…</translation>
    </message>
    <message>
        <source>Kestrune is up to date</source>
        <translation>Kestrune está actualizado</translation>
    </message>
    <message>
        <source>Kestrune %1 is available</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Kestrune %1 está disponible</translation>
    </message>
    <message>
        <source>Downloading Kestrune %1…</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Descargando Kestrune %1…</translation>
    </message>
    <message>
        <source>Kestrune %1 is ready to install</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Kestrune %1 está listo para instalarse</translation>
    </message>
    <message>
        <source>Kestrune could not be updated</source>
        <translation>No se ha podido actualizar Kestrune</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>La versión %1 es la más reciente.</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Tienes la versión %1.</translation>
    </message>
    <message>
        <source>It was checked: it comes from Kestrune’s makers.</source>
        <translation>Comprobado: procede de los creadores de Kestrune.</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>A verb, on a button.</extracomment>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>Install…</source>
        <translation>Instalar…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>A button that closes the window of an update.</extracomment>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Bound to %1</source>
        <extracomment>%1 is a combination of keys, as the desktop writes it.</extracomment>
        <translation>Asignado a %1</translation>
    </message>
    <message>
        <source>Another program has these keys. In the desktop’s settings, bind others to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>Otro programa usa estas teclas. En los ajustes del escritorio, asigna otras a: %1</translation>
    </message>
    <message>
        <source>No keys are bound. In the desktop’s settings, bind some to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>No hay teclas asignadas. En los ajustes del escritorio, asigna unas a: %1</translation>
    </message>
    <message>
        <source>The list of releases has expired, so it was ignored. Is the clock set right?</source>
        <translation>La lista de versiones ha caducado, así que se ha ignorado. ¿Está bien puesto el reloj?</translation>
    </message>
    <message>
        <source>The list of releases is dated in the future, so it was ignored. Is the clock set right?</source>
        <translation>La lista de versiones tiene una fecha futura, así que se ha ignorado. ¿Está bien puesto el reloj?</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>The name of a calendar in quotation marks.</extracomment>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>Could not be read in full: %1</source>
        <extracomment>%1 is the name of a calendar in quotation marks, or several with commas between them.</extracomment>
        <translation>No se ha podido leer por completo: %1</translation>
    </message>
    <message>
        <source>Renewed; figures of %1</source>
        <extracomment>A limit has begun anew since it was read; %1 is when that was, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>Renovado; datos de %1</translation>
    </message>
    <message>
        <source>All day, since %1</source>
        <extracomment>In the place of an appointment’s time; %1 is the day before today when it began, such as “Mon”.</extracomment>
        <translation>Todo el día, desde %1</translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>When an appointment began; %1 is a day before today and a time, such as “Mon 14:05”.</extracomment>
        <translation>Desde %1</translation>
    </message>
    <message>
        <source>Hide over full-screen windows</source>
        <extracomment>The closed notch; displays with a camera housing keep theirs.</extracomment>
        <translation>Ocultar sobre ventanas a pantalla completa</translation>
    </message>
    <message>
        <source>Panels at the top edge</source>
        <extracomment>Other programs&apos; bars along the top of the screen; followed by a choice of where the notch is.</extracomment>
        <translation>Paneles en el borde superior</translation>
    </message>
    <message>
        <source>Automatic</source>
        <extracomment>Completes “Panels at the top edge”: below them, but around a camera.</extracomment>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Notch over them</source>
        <extracomment>Completes “Panels at the top edge”: the notch lies over them.</extracomment>
        <translation>Muesca encima</translation>
    </message>
    <message>
        <source>Notch below them</source>
        <extracomment>Completes “Panels at the top edge”: the notch hangs below them.</extracomment>
        <translation>Muesca debajo</translation>
    </message>
    <message>
        <source>Press the keys…</source>
        <translation>Pulsa las teclas…</translation>
    </message>
    <message>
        <source>Keys that open and close the notch: %1</source>
        <translation>Teclas que abren y cierran la muesca: %1</translation>
    </message>
    <message>
        <source>Keys</source>
        <extracomment>Beside a button that shows the keys of the hot key.</extracomment>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Open and close with %1</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>Abrir y cerrar con %1</translation>
    </message>
    <message>
        <source>Pin</source>
        <extracomment>In the menu of an entry of the clipboard history: keep it until it is deleted.</extracomment>
        <translation>Anclar</translation>
    </message>
    <message>
        <source>Pinned</source>
        <extracomment>Said of an entry of the clipboard history that is kept until the user deletes it.</extracomment>
        <translation>Anclado</translation>
    </message>
    <message>
        <source>Cut</source>
        <extracomment>In the menu of a text field, as “Copy”, “Paste” and “Select All”.</extracomment>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Play and pause the teleprompter with Ctrl+Alt+Super+P</source>
        <translation>Reproducir y pausar el teleprompter con Ctrl+Alt+Super+P</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mover a la papelera</translation>
    </message>
    <message>
        <source>Choose the camera</source>
        <translation>Elegir la cámara</translation>
    </message>
    <message>
        <source>The desktop will ask you for the camera.</source>
        <translation>El escritorio te preguntará por la cámara.</translation>
    </message>
    <message>
        <source>Turn On Camera</source>
        <translation>Encender la cámara</translation>
    </message>
    <message>
        <source>You refused the camera before, and the desktop remembers it.
Allow it in the desktop’s privacy settings.</source>
        <translation>Rechazaste la cámara antes y el escritorio lo recuerda.
Permítela en sus ajustes de privacidad.</translation>
    </message>
    <message>
        <source>Cannot be reached now</source>
        <translation>No disponible ahora</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>How long the rest of the script takes to scroll past. %1 is a time such as 3:05.</extracomment>
        <translation>Quedan %1</translation>
    </message>
    <message>
        <source>Play or pause the teleprompter</source>
        <extracomment>What a hot key does, in the desktop&apos;s settings.</extracomment>
        <translation>Reproducir o pausar el teleprompter</translation>
    </message>
    <message>
        <source>To send files, KDE Connect or GSConnect has to run.</source>
        <translation>Para enviar archivos, KDE Connect o GSConnect debe estar en marcha.</translation>
    </message>
    <message>
        <source>Sending to %1…</source>
        <translation>Enviando a %1…</translation>
    </message>
    <message>
        <source>On the way to %1.</source>
        <extracomment>The files have been handed over to the service that sends them.</extracomment>
        <translation>En camino a %1.</translation>
    </message>
    <message>
        <source>Could not be sent to %1.</source>
        <translation>No se pudo enviar a %1.</translation>
    </message>
    <message>
        <source>No paired device is in reach.</source>
        <translation>No hay ningún dispositivo emparejado al alcance.</translation>
    </message>
    <message numerus="yes">
        <source>Send %Ln files to %1</source>
        <extracomment>An entry of a menu. %1 is the name of a phone or of another computer.</extracomment>
        <translation>
            <numerusform>Enviar %Ln archivo a %1</numerusform>
            <numerusform>Enviar %Ln archivos a %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash.</source>
        <translation>No se pudo mover %1 a la papelera.</translation>
    </message>
    <message>
        <source>Default Camera</source>
        <extracomment>The first of the cameras to choose from: whichever the desktop takes.</extracomment>
        <translation>Cámara predeterminada</translation>
    </message>
    <message>
        <source>Minutes</source>
        <extracomment>What the empty field for the length of a timer says.</extracomment>
        <translation>Minutos</translation>
    </message>
    <message>
        <source>One minute less</source>
        <translation>Un minuto menos</translation>
    </message>
    <message>
        <source>One minute more</source>
        <translation>Un minuto más</translation>
    </message>
    <message>
        <source>The time is up.</source>
        <extracomment>The timer has run down.</extracomment>
        <translation>Se acabó el tiempo.</translation>
    </message>
    <message>
        <source>As of %1</source>
        <extracomment>Beside figures that could not be fetched anew; %1 is when they came, such as “14:05” or “24.12.26 14:05”.</extracomment>
        <translation>A fecha de %1</translation>
    </message>
    <message>
        <source>Quotes are not available right now.</source>
        <extracomment>The prices of shares, which a server on the web tells.</extracomment>
        <translation>Las cotizaciones no están disponibles en este momento.</translation>
    </message>
</context>
</TS>
