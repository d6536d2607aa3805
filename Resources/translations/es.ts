<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>notch</name>
    <message>
        <source>Unpin</source>
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
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>%d min</source>
        <translation>%d&#xa0;min</translation>
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
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Text</source>
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
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Connect Codex or Claude Code to see your limits.</source>
        <translation>Conecta Codex o Claude Code para ver tus límites.</translation>
    </message>
    <message>
        <source>Reads the plan limits that Codex CLI saves in ~/.codex on this Mac.</source>
        <translation>Lee los límites de tu plan que Codex CLI guarda en ~/.codex en este Mac.</translation>
    </message>
    <message>
        <source>Adds up the tokens that Claude Code logs in ~/.claude on this Mac. Anthropic does not store your remaining limit locally.</source>
        <translation>Suma los tokens que Claude Code registra en ~/.claude en este Mac. Anthropic no guarda en local el límite que te queda.</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Últimos 7 días</translation>
    </message>
    <message>
        <source>Nothing leaves your Mac.</source>
        <translation>Nada sale de tu Mac.</translation>
    </message>
    <message>
        <source>Read again</source>
        <translation>Volver a leer</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>%@ tokens</source>
        <translation>%@ tokens</translation>
    </message>
    <message>
        <source>%d%% left</source>
        <translation>%d&#xa0;%% restante</translation>
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
        <source>Updated %@</source>
        <translation>Actualizado: %@</translation>
    </message>
    <message>
        <source>5-hour window</source>
        <translation>Periodo de 5&#xa0;h</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Semanal</translation>
    </message>
    <message>
        <source>No Claude Code activity found.</source>
        <translation>No hay actividad de Claude Code.</translation>
    </message>
    <message>
        <source>%d%% of your budget</source>
        <translation>%d&#xa0;%% de tu presupuesto</translation>
    </message>
    <message>
        <source>%d%% of your busiest block this week</source>
        <translation>%d&#xa0;%% de tu mayor bloque semanal</translation>
    </message>
    <message>
        <source>This 5-hour block</source>
        <translation>Este bloque de 5&#xa0;h</translation>
    </message>
    <message>
        <source>Resets: %@</source>
        <translation>Se renueva: %@</translation>
    </message>
    <message>
        <source>%d%%</source>
        <translation>%d&#xa0;%%</translation>
    </message>
    <message>
        <source>Drop files here to keep them handy.
Drag them out anywhere, or AirDrop them.</source>
        <translation>Suelta archivos aquí para tenerlos a mano.
Arrástralos adonde quieras o envíalos con AirDrop.</translation>
    </message>
    <message>
        <source>Allow %@ to read your screenshots folder in
System Settings › Privacy &amp; Security › Files and Folders.</source>
        <translation>Permite que %@ lea tu carpeta de capturas en
Ajustes del sistema › Privacidad y seguridad › Archivos y carpetas.</translation>
    </message>
    <message>
        <source>Take a screenshot (⇧⌘4) and it appears here.
Drag it into any app, or right-click for more.</source>
        <translation>Haz una captura de pantalla (⇧⌘4) y aparecerá aquí.
Arrástrala a cualquier app o haz clic derecho para ver más.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Abrir Ajustes</translation>
    </message>
    <message>
        <source>Click to open · drag into any app · right-click to copy, AirDrop or add to the Shelf.</source>
        <translation>Clic: abrir · arrastrar a una app · clic derecho: copiar, AirDrop o Estante</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>AirDrop</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Paste your script here. It scrolls right under the camera so you keep eye contact.</source>
        <translation>Pega tu guion aquí. Se desplaza justo debajo de la cámara para que mantengas el contacto visual.</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Guion</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Reiniciar</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Text %d</source>
        <translation>Texto %d</translation>
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
        <translation>Mi ubicación</translation>
    </message>
    <message>
        <source>Location not available. Type a city instead.</source>
        <translation>Ubicación no disponible. Escribe una ciudad.</translation>
    </message>
    <message>
        <source>Not found: %@</source>
        <translation>No encontrado: %@</translation>
    </message>
    <message>
        <source>Wind %@ mph</source>
        <translation>Viento %@&#xa0;mph</translation>
    </message>
    <message>
        <source>Wind %@ km/h</source>
        <translation>Viento %@&#xa0;km/h</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Allow %@ to control Music or Spotify in
System Settings › Privacy &amp; Security › Automation.</source>
        <translation>Permite que %@ controle Music o Spotify en
Ajustes del sistema › Privacidad y seguridad › Automatización.</translation>
    </message>
    <message>
        <source>Play something in Music or Spotify
and it shows up here.</source>
        <translation>Reproduce algo en Music o Spotify
y aparecerá aquí.</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>charging</source>
        <translation>cargando</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>%@ free</source>
        <translation>%@ libres</translation>
    </message>
    <message>
        <source>No camera found.</source>
        <translation>No se encontró ninguna cámara.</translation>
    </message>
    <message>
        <source>Allow %@ to use the camera in
System Settings › Privacy &amp; Security › Camera.</source>
        <translation>Permite que %@ use la cámara en
Ajustes del sistema › Privacidad y seguridad › Cámara.</translation>
    </message>
    <message>
        <source>Events</source>
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
        <translation>Todo hecho</translation>
    </message>
    <message>
        <source>Nothing else today.</source>
        <translation>Nada más hoy.</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Completar</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Mañana</translation>
    </message>
    <message>
        <source>All day</source>
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
        <translation>Kestrune es una parte de Fennivar, la app todo en uno que hace que tu Mac funcione como debe.</translation>
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
        <translation>Apertura</translation>
    </message>
    <message>
        <source>Open the notch</source>
        <translation>Abrir la muesca</translation>
    </message>
    <message>
        <source>Hover delay</source>
        <translation>Retardo al apuntar</translation>
    </message>
    <message>
        <source>Open and close with ⌃⌥⌘N</source>
        <translation>Abrir y cerrar con ⌃⌥⌘N</translation>
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
        <translation>Todo se queda en este Mac. Tiempo pide a Open-Meteo la previsión de tu ciudad y Bolsa pide las cotizaciones a Yahoo Finance; nada más sale a internet.</translation>
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
        <source>Kestrune %@ is available</source>
        <translation>Kestrune %@ está disponible</translation>
    </message>
    <message>
        <source>Downloading Kestrune %@…</source>
        <translation>Descargando Kestrune %@…</translation>
    </message>
    <message>
        <source>Kestrune %@ is ready to install</source>
        <translation>Kestrune %@ está listo para instalarse</translation>
    </message>
    <message>
        <source>Kestrune could not be updated</source>
        <translation>No se ha podido actualizar Kestrune</translation>
    </message>
    <message>
        <source>Version %@ is the newest one.</source>
        <translation>La versión %@ es la más reciente.</translation>
    </message>
    <message>
        <source>You have version %@.</source>
        <translation>Tienes la versión %@.</translation>
    </message>
    <message>
        <source>It was checked: it comes from Kestrune’s makers.</source>
        <translation>Comprobado: procede de los creadores de Kestrune.</translation>
    </message>
    <message>
        <source>Download</source>
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
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
</TS>
