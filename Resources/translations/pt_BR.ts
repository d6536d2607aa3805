<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>notch</name>
    <message>
        <source>Unpin</source>
        <extracomment>Let the notch close by itself again; the opposite of “Keep open”.</extracomment>
        <translation>Desafixar</translation>
    </message>
    <message>
        <source>Keep open</source>
        <translation>Manter aberto</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Good night</source>
        <translation>Boa noite</translation>
    </message>
    <message>
        <source>Good morning</source>
        <translation>Bom dia</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>Boa tarde</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>Boa noite</translation>
    </message>
    <message>
        <source>Choose what Home shows in Settings › Home screen.</source>
        <translation>Escolha o que aparece aqui em Configurações › Tela de início.</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>A note to oneself, such as one jots down.</extracomment>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Quick note… it saves as you type.</source>
        <translation>Nota rápida… é salva enquanto você digita.</translation>
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
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>Start the timer.</extracomment>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>Set the timer back to its beginning.</extracomment>
        <translation>Zerar</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>A button of the script: “Edit” begins to change it, “Done” ends that.
----------
The time of the timer is over.</extracomment>
        <translation>Concluído</translation>
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
        <translation>O tempo continua visível ao lado do notch fechado.</translation>
    </message>
    <message>
        <source>Fennivar’s notch is on, so Kestrune is paused.</source>
        <translation>O notch do Fennivar está ativado, por isso o Kestrune está em pausa.</translation>
    </message>
    <message>
        <source>Turn off Notch in Fennivar to use Kestrune.</source>
        <translation>Desative o notch no Fennivar para usar o Kestrune.</translation>
    </message>
    <message>
        <source>Home</source>
        <extracomment>The page that the notch opens with, like that of a telephone.</extracomment>
        <translation>Início</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>Tocando agora</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Itens copiados</translation>
    </message>
    <message>
        <source>Screenshots</source>
        <translation>Capturas</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendário</translation>
    </message>
    <message>
        <source>Shelf</source>
        <extracomment>A place where files are put down for a while.</extracomment>
        <translation>Prateleira</translation>
    </message>
    <message>
        <source>AI Usage</source>
        <translation>Uso de IA</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Clima</translation>
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
        <translation>Espelho</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>Processor, memory, disk and battery of this computer.</extracomment>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Greeting and date</source>
        <translation>Saudação e data</translation>
    </message>
    <message>
        <source>Today&apos;s events</source>
        <translation>Eventos de hoje</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Lembretes</translation>
    </message>
    <message>
        <source>Latest copies</source>
        <translation>Últimas cópias</translation>
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
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Direita</translation>
    </message>
    <message>
        <source>On hover</source>
        <extracomment>Completes “Open the notch”: when the pointer rests on it.</extracomment>
        <translation>Ao apontar</translation>
    </message>
    <message>
        <source>On click</source>
        <translation>Ao clicar</translation>
    </message>
    <message>
        <source>More tools at fennivar.example</source>
        <translation>Mais em fennivar.example</translation>
    </message>
    <message>
        <source>this app</source>
        <extracomment>Stands for the name of the program where it has none.</extracomment>
        <translation>este app</translation>
    </message>
    <message>
        <source>Copy something and it appears here.
Passwords from password managers are never saved.</source>
        <translation>Copie algo e aparecerá aqui.
Senhas de gerenciadores de senhas nunca são salvas.</translation>
    </message>
    <message>
        <source>Clipboard history is off.
Turn it on in Settings.</source>
        <translation>O histórico da área de transferência está desativado.
Ative-o em Configurações.</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Limpar histórico</translation>
    </message>
    <message>
        <source>Nothing matches.</source>
        <translation>Nenhum resultado.</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>In the menu of an entry: delete it from the history.</extracomment>
        <translation>Excluir</translation>
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
        <translation>Tudo</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>What the list shows: the copies that are texts.</extracomment>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Imagens</translation>
    </message>
    <message>
        <source>PDFs</source>
        <translation>PDFs</translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>The title of a copied picture, before its size.</extracomment>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>Connect Codex or Claude Code to see your limits.</source>
        <translation>Conecte o Codex ou o Claude Code para ver seus limites.</translation>
    </message>
    <message>
        <source>Reads the plan limits that Codex CLI saves in ~/.codex on this Mac.</source>
        <translation>Lê os limites do seu plano que o Codex CLI salva em ~/.codex neste computador.</translation>
    </message>
    <message>
        <source>Adds up the tokens that Claude Code logs in ~/.claude on this Mac. Anthropic does not store your remaining limit locally.</source>
        <translation>Soma os tokens que o Claude Code registra em ~/.claude neste computador. A Anthropic não guarda localmente o que resta do seu limite.</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Últimos 7 dias</translation>
    </message>
    <message>
        <source>Nothing leaves your Mac.</source>
        <translation>Nada sai do seu computador.</translation>
    </message>
    <message>
        <source>Read again</source>
        <extracomment>On a round button: read the logs once more.</extracomment>
        <translation>Ler de novo</translation>
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
            <numerusform>%Ln% restante</numerusform>
            <numerusform>%Ln% restantes</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lendo…</translation>
    </message>
    <message>
        <source>No Codex activity found yet. Use Codex once and it appears here.</source>
        <translation>Ainda não há atividade do Codex. Use o Codex uma vez e ela aparecerá aqui.</translation>
    </message>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is a time, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>Atualizado: %1</translation>
    </message>
    <message>
        <source>5-hour window</source>
        <extracomment>The name of a limit that holds for five hours.</extracomment>
        <translation>Período de 5 h</translation>
    </message>
    <message>
        <source>Weekly</source>
        <extracomment>The name of a limit that holds for a week.</extracomment>
        <translation>Semanal</translation>
    </message>
    <message>
        <source>No Claude Code activity found.</source>
        <translation>Nenhuma atividade do Claude Code.</translation>
    </message>
    <message>
        <source>%1% of your budget</source>
        <extracomment>%1 is a number. There is little room.</extracomment>
        <translation>%1% do seu orçamento</translation>
    </message>
    <message>
        <source>%1% of your busiest block this week</source>
        <extracomment>%1 is a number; a block is five hours of work. There is little room.</extracomment>
        <translation>%1% do seu maior bloco da semana</translation>
    </message>
    <message>
        <source>This 5-hour block</source>
        <translation>Este bloco de 5 h</translation>
    </message>
    <message>
        <source>Resets: %1</source>
        <extracomment>When a limit begins anew; %1 is a time, such as “14:05” or “Mon 14:05”. There is little room.</extracomment>
        <translation>Renovação: %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>%1 is a number, with decimals where it is the change of a share’s price.</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Drop files here to keep them handy.
Drag them out anywhere, or AirDrop them.</source>
        <translation>Solte arquivos aqui para tê-los à mão.
Arraste-os para onde quiser ou envie-os a um dispositivo.</translation>
    </message>
    <message>
        <source>Allow %1 to read your screenshots folder in
System Settings › Privacy &amp; Security › Files and Folders.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>Permita que %1 leia sua pasta de capturas de tela:
as permissões da pasta não deixam.</translation>
    </message>
    <message>
        <source>Take a screenshot (⇧⌘4) and it appears here.
Drag it into any app, or right-click for more.</source>
        <translation>Faça uma captura de tela (Print Screen) e ela aparecerá aqui.
Arraste-a para qualquer app ou clique com o botão direito para mais opções.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>A button that opens the settings of the desktop.</extracomment>
        <translation>Abrir configurações</translation>
    </message>
    <message>
        <source>Click to open · drag into any app · right-click to copy, AirDrop or add to the Shelf.</source>
        <translation>Clique: abrir · arraste para um app · clique direito: copiar, enviar ou Prateleira</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Mostrar na pasta</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>Enviar a um dispositivo</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>A button: take all files off the shelf.</extracomment>
        <translation>Esvaziar</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Take a file off the shelf; the file itself stays where it is.</extracomment>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Paste your script here. It scrolls right under the camera so you keep eye contact.</source>
        <translation>Cole seu roteiro aqui. Ele passa logo abaixo da câmera para você manter o contato visual.</translation>
    </message>
    <message>
        <source>Script</source>
        <extracomment>Name of the field for the text that is read aloud.</extracomment>
        <translation>Roteiro</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>A button: scroll the script from its beginning again.</extracomment>
        <translation>Recomeçar</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>How fast the script scrolls.</extracomment>
        <translation>Velocidade</translation>
    </message>
    <message>
        <source>Text %1</source>
        <extracomment>%1 is the size of the letters in points. There is little room.</extracomment>
        <translation>Texto %1</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Texto menor</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Texto maior</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Add to Shelf</source>
        <translation>Pôr na prateleira</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>In the menu of a screenshot: copy the picture.</extracomment>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Type the symbols that you want to follow.</source>
        <translation>Digite os símbolos que você quer acompanhar.</translation>
    </message>
    <message>
        <source>Symbols, separated by commas (AAPL, TSLA, ^GSPC, BTC-USD)</source>
        <translation>Símbolos separados por vírgulas (AAPL, TSLA, ^GSPC, BTC-USD)</translation>
    </message>
    <message>
        <source>Delayed quotes from Yahoo Finance.</source>
        <translation>Cotações com atraso do Yahoo Finance.</translation>
    </message>
    <message>
        <source>Edit symbols</source>
        <translation>Editar símbolos</translation>
    </message>
    <message>
        <source>Choose a city to see its weather.</source>
        <translation>Escolha uma cidade para ver o clima.</translation>
    </message>
    <message>
        <source>City</source>
        <extracomment>What the empty field for the name of a city says.</extracomment>
        <translation>Cidade</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Usar minha localização</translation>
    </message>
    <message>
        <source>Change city</source>
        <translation>Mudar cidade</translation>
    </message>
    <message>
        <source>Forecast by Open-Meteo. Only the city&apos;s coordinates are sent.</source>
        <translation>Previsão do Open-Meteo. Só as coordenadas da cidade são enviadas.</translation>
    </message>
    <message>
        <source>Weather is not available right now.</source>
        <translation>O clima não está disponível no momento.</translation>
    </message>
    <message>
        <source>City not found.</source>
        <translation>Cidade não encontrada.</translation>
    </message>
    <message>
        <source>My location</source>
        <extracomment>In the place of a city’s name.</extracomment>
        <translation>Minha localização</translation>
    </message>
    <message>
        <source>Location not available. Type a city instead.</source>
        <translation>Localização não disponível. Digite uma cidade.</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <extracomment>%1 is a list of the symbols of shares.</extracomment>
        <translation>Não encontrado: %1</translation>
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
        <translation>Hoje</translation>
    </message>
    <message>
        <source>Allow %1 to control Music or Spotify in
System Settings › Privacy &amp; Security › Automation.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>Permita que %1 controle os reprodutores nas
configurações de privacidade do ambiente.</translation>
    </message>
    <message>
        <source>Play something in Music or Spotify
and it shows up here.</source>
        <translation>Reproduza algo em qualquer reprodutor
e aparecerá aqui.</translation>
    </message>
    <message>
        <source>Previous</source>
        <extracomment>The previous song.</extracomment>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>The next song.</extracomment>
        <translation>Próxima</translation>
    </message>
    <message>
        <source>charging</source>
        <extracomment>Of the battery, after its level: “80% · charging”.</extracomment>
        <translation>carregando</translation>
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
        <translation>Memória</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is an amount with its unit, such as 12.3 GB.</extracomment>
        <translation>%1 livres</translation>
    </message>
    <message>
        <source>No camera found.</source>
        <translation>Nenhuma câmera encontrada.</translation>
    </message>
    <message>
        <source>Allow %1 to use the camera in
System Settings › Privacy &amp; Security › Camera.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>Permita que %1 use a câmera nas
configurações de privacidade do ambiente.</translation>
    </message>
    <message>
        <source>Events</source>
        <extracomment>Heading of the list of appointments.</extracomment>
        <translation>Eventos</translation>
    </message>
    <message>
        <source>Allow Calendar</source>
        <translation>Permitir acesso</translation>
    </message>
    <message>
        <source>Nothing else today or tomorrow.</source>
        <translation>Nada mais hoje nem amanhã.</translation>
    </message>
    <message>
        <source>Allow Reminders</source>
        <translation>Permitir acesso</translation>
    </message>
    <message>
        <source>All done</source>
        <extracomment>Instead of a list: no reminder is left.</extracomment>
        <translation>Tudo feito</translation>
    </message>
    <message>
        <source>Nothing else today.</source>
        <translation>Nada mais hoje.</translation>
    </message>
    <message>
        <source>Complete</source>
        <extracomment>A verb, on the circle before a reminder: mark it as done.</extracomment>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>Event</source>
        <extracomment>The title of an appointment that has none.</extracomment>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Amanhã</translation>
    </message>
    <message>
        <source>All day</source>
        <extracomment>In the place of an appointment’s time.</extracomment>
        <translation>Dia inteiro</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Para cima</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Para baixo</translation>
    </message>
    <message>
        <source>Want more? Meet Fennivar</source>
        <translation>Quer mais? Conheça o Fennivar</translation>
    </message>
    <message>
        <source>Kestrune is one piece of Fennivar, the all-in-one app that makes your Mac work the way it should.</source>
        <translation>O Kestrune é uma parte do Fennivar, o app completo que faz seu computador funcionar como deveria.</translation>
    </message>
    <message>
        <source>Snap windows into place with a key or a drag</source>
        <translation>Encaixe as janelas com uma tecla ou arrastando</translation>
    </message>
    <message>
        <source>Find files, apps and settings from one field</source>
        <translation>Encontre arquivos, apps e configurações em um só campo</translation>
    </message>
    <message>
        <source>See what fills your disk and free it up</source>
        <translation>Veja o que ocupa seu disco e libere espaço</translation>
    </message>
    <message>
        <source>Keep an eye on the battery and make it last</source>
        <translation>Acompanhe a bateria e faça-a durar mais</translation>
    </message>
    <message>
        <source>Discover Fennivar ↗</source>
        <translation>Conheça o Fennivar ↗</translation>
    </message>
    <message>
        <source>Opening</source>
        <extracomment>Heading of the settings that say how the notch opens.</extracomment>
        <translation>Abertura</translation>
    </message>
    <message>
        <source>Open the notch</source>
        <extracomment>Followed by the choice of “On hover” and “On click”.</extracomment>
        <translation>Abrir o notch</translation>
    </message>
    <message>
        <source>Hover delay</source>
        <extracomment>How long the pointer rests on the notch before it opens; beside a slider.</extracomment>
        <translation>Atraso ao apontar</translation>
    </message>
    <message>
        <source>Open and close with ⌃⌥⌘N</source>
        <translation>Abrir e fechar com Ctrl+Alt+Super+N</translation>
    </message>
    <message>
        <source>Show the song or timer beside the closed notch</source>
        <translation>Mostrar a música ou o timer ao lado do notch fechado</translation>
    </message>
    <message>
        <source>Show new screenshots beside the notch</source>
        <translation>Mostrar novas capturas ao lado do notch</translation>
    </message>
    <message>
        <source>Displays</source>
        <extracomment>Heading of the settings that are about monitors.</extracomment>
        <translation>Telas</translation>
    </message>
    <message>
        <source>Show on every display</source>
        <translation>Mostrar em todas as telas</translation>
    </message>
    <message>
        <source>Draw a notch on displays without one</source>
        <translation>Desenhar um notch nas telas sem notch</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privacidade</translation>
    </message>
    <message>
        <source>Everything stays on this Mac. Weather asks Open-Meteo for your city&apos;s forecast and Stocks asks Yahoo Finance for quotes; nothing else goes online.</source>
        <translation>Tudo fica neste computador. Clima pede ao Open-Meteo a previsão da sua cidade e Bolsa pede as cotações ao Yahoo Finance; nada mais vai para a internet.</translation>
    </message>
    <message>
        <source>Keep a clipboard history</source>
        <translation>Manter histórico da área de transferência</translation>
    </message>
    <message>
        <source>Read Codex usage (~/.codex)</source>
        <translation>Ler o uso do Codex (~/.codex)</translation>
    </message>
    <message>
        <source>Read Claude Code usage (~/.claude)</source>
        <translation>Ler o uso do Claude Code (~/.claude)</translation>
    </message>
    <message>
        <source>Temperatures in °F</source>
        <translation>Temperaturas em °F</translation>
    </message>
    <message>
        <source>Home screen</source>
        <translation>Tela de início</translation>
    </message>
    <message>
        <source>Restore default layout</source>
        <translation>Restaurar layout padrão</translation>
    </message>
    <message>
        <source>Leave it at 0 to compare with your busiest block of the week. Anthropic does not publish limits in tokens, so set your own if you know it.</source>
        <translation>Deixe em 0 para comparar com o seu maior bloco da semana. A Anthropic não publica limites em tokens; informe o seu se souber.</translation>
    </message>
    <message>
        <source>Claude 5-hour budget (tokens)</source>
        <translation>Orçamento Claude para 5 h (tokens)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Ferramentas</translation>
    </message>
    <message>
        <source>Kestrune Settings</source>
        <translation>Configurações do Kestrune</translation>
    </message>
    <message>
        <source>This copy gets its updates with its package, or from whoever built it.</source>
        <translation>Esta cópia é atualizada com seu pacote ou por quem a compilou.</translation>
    </message>
    <message>
        <source>Open Kestrune at login</source>
        <translation>Abrir o Kestrune ao iniciar sessão</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Instalar atualizações automaticamente</translation>
    </message>
    <message>
        <source>Open Notch</source>
        <translation>Abrir o notch</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Configurações…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar atualizações…</translation>
    </message>
    <message>
        <source>Get more tools: Fennivar ↗</source>
        <translation>Mais ferramentas: Fennivar ↗</translation>
    </message>
    <message>
        <source>Quit Kestrune</source>
        <translation>Sair do Kestrune</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>%1 is a number of milliseconds.</extracomment>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Kestrune then looks once a day, downloads what is new and asks before it is installed.</source>
        <translation>O Kestrune então busca uma vez por dia, baixa o que há de novo e pergunta antes de instalar.</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Atualização de software</translation>
    </message>
    <message>
        <source>The list of releases is not signed by Kestrune’s makers, so it was ignored.</source>
        <translation>A lista de versões não está assinada pelos criadores do Kestrune e foi ignorada.</translation>
    </message>
    <message>
        <source>The list of releases could not be read. Are you online?</source>
        <translation>Não foi possível ler a lista de versões. Você está online?</translation>
    </message>
    <message>
        <source>The list of releases is older than one seen before, so it was ignored.</source>
        <translation>A lista de versões é mais antiga que outra já vista e foi ignorada.</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Are you online?</source>
        <translation>Não foi possível baixar a atualização. Você está online?</translation>
    </message>
    <message>
        <source>The update is not what Kestrune’s makers signed, so it was not kept.</source>
        <translation>A atualização não é a que os criadores do Kestrune assinaram e não foi mantida.</translation>
    </message>
    <message>
        <source>The update could not be saved. Is the disk full?</source>
        <translation>Não foi possível salvar a atualização. O disco está cheio?</translation>
    </message>
    <message>
        <source>The downloaded update was changed or removed.</source>
        <translation>A atualização baixada foi alterada ou removida.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Buscando atualizações…</translation>
    </message>
    <message>
        <source>Kestrune is up to date</source>
        <translation>O Kestrune está atualizado</translation>
    </message>
    <message>
        <source>Kestrune %1 is available</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>O Kestrune %1 está disponível</translation>
    </message>
    <message>
        <source>Downloading Kestrune %1…</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Baixando o Kestrune %1…</translation>
    </message>
    <message>
        <source>Kestrune %1 is ready to install</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>O Kestrune %1 está pronto para instalar</translation>
    </message>
    <message>
        <source>Kestrune could not be updated</source>
        <translation>Não foi possível atualizar o Kestrune</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>A versão %1 é a mais recente.</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Você tem a versão %1.</translation>
    </message>
    <message>
        <source>It was checked: it comes from Kestrune’s makers.</source>
        <translation>Verificado: vem dos criadores do Kestrune.</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>A verb, on a button.</extracomment>
        <translation>Baixar</translation>
    </message>
    <message>
        <source>Install…</source>
        <translation>Instalar…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>A button that closes the window of an update.</extracomment>
        <translation>Mais tarde</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Bound to %1</source>
        <extracomment>%1 is a combination of keys, as the desktop writes it.</extracomment>
        <translation>Atribuído a %1</translation>
    </message>
    <message>
        <source>Another program has these keys. In the desktop’s settings, bind others to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>Outro programa usa essas teclas. Nas configurações da área de trabalho, atribua outras a: %1</translation>
    </message>
    <message>
        <source>No keys are bound. In the desktop’s settings, bind some to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>Nenhuma tecla está atribuída. Nas configurações da área de trabalho, atribua alguma a: %1</translation>
    </message>
    <message>
        <source>The list of releases has expired, so it was ignored. Is the clock set right?</source>
        <translation>A lista de versões expirou e foi ignorada. O relógio está certo?</translation>
    </message>
    <message>
        <source>The list of releases is dated in the future, so it was ignored. Is the clock set right?</source>
        <translation>A lista de versões tem uma data futura e foi ignorada. O relógio está certo?</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>The name of a calendar in quotation marks.</extracomment>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>Could not be read in full: %1</source>
        <extracomment>%1 is the name of a calendar in quotation marks, or several with commas between them.</extracomment>
        <translation>Não foi possível ler por completo: %1</translation>
    </message>
    <message>
        <source>Renewed; figures of %1</source>
        <extracomment>A limit has begun anew since it was read; %1 is when that was, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>Renovado; dados de %1</translation>
    </message>
    <message>
        <source>All day, since %1</source>
        <extracomment>In the place of an appointment’s time; %1 is the day before today when it began, such as “Mon”.</extracomment>
        <translation>Dia inteiro, desde %1</translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>When an appointment began; %1 is a day before today and a time, such as “Mon 14:05”.</extracomment>
        <translation>Desde %1</translation>
    </message>
    <message>
        <source>Hide over full-screen windows</source>
        <extracomment>The closed notch; displays with a camera housing keep theirs.</extracomment>
        <translation>Ocultar sobre janelas em tela cheia</translation>
    </message>
    <message>
        <source>Panels at the top edge</source>
        <extracomment>Other programs&apos; bars along the top of the screen; followed by a choice of where the notch is.</extracomment>
        <translation>Painéis na borda superior</translation>
    </message>
    <message>
        <source>Automatic</source>
        <extracomment>Completes “Panels at the top edge”: below them, but around a camera.</extracomment>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Notch over them</source>
        <extracomment>Completes “Panels at the top edge”: the notch lies over them.</extracomment>
        <translation>Notch por cima</translation>
    </message>
    <message>
        <source>Notch below them</source>
        <extracomment>Completes “Panels at the top edge”: the notch hangs below them.</extracomment>
        <translation>Notch por baixo</translation>
    </message>
    <message>
        <source>Press the keys…</source>
        <translation>Pressione as teclas…</translation>
    </message>
    <message>
        <source>Keys that open and close the notch: %1</source>
        <translation>Teclas que abrem e fecham o notch: %1</translation>
    </message>
    <message>
        <source>Keys</source>
        <extracomment>Beside a button that shows the keys of the hot key.</extracomment>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Open and close with %1</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>Abrir e fechar com %1</translation>
    </message>
    <message>
        <source>Pin</source>
        <extracomment>In the menu of an entry of the clipboard history: keep it until it is deleted.</extracomment>
        <translation>Afixar</translation>
    </message>
    <message>
        <source>Pinned</source>
        <extracomment>Said of an entry of the clipboard history that is kept until the user deletes it.</extracomment>
        <translation>Afixado</translation>
    </message>
    <message>
        <source>Cut</source>
        <extracomment>In the menu of a text field, as “Copy”, “Paste” and “Select All”.</extracomment>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Play and pause the teleprompter with Ctrl+Alt+Super+P</source>
        <translation>Reproduzir e pausar o teleprompter com Ctrl+Alt+Super+P</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mover para a lixeira</translation>
    </message>
    <message>
        <source>Choose the camera</source>
        <translation>Escolher a câmera</translation>
    </message>
    <message>
        <source>The desktop will ask you for the camera.</source>
        <translation>A área de trabalho vai pedir a sua permissão para a câmera.</translation>
    </message>
    <message>
        <source>Turn On Camera</source>
        <translation>Ligar a câmera</translation>
    </message>
    <message>
        <source>You refused the camera before, and the desktop remembers it.
Allow it in the desktop’s privacy settings.</source>
        <translation>Você já recusou a câmera, e a área de trabalho se lembra disso.
Permita-a nos ajustes de privacidade dela.</translation>
    </message>
    <message>
        <source>Cannot be reached now</source>
        <translation>Inacessível no momento</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>How long the rest of the script takes to scroll past. %1 is a time such as 3:05.</extracomment>
        <translation>Restam %1</translation>
    </message>
    <message>
        <source>Play or pause the teleprompter</source>
        <extracomment>What a hot key does, in the desktop&apos;s settings.</extracomment>
        <translation>Reproduzir ou pausar o teleprompter</translation>
    </message>
    <message>
        <source>To send files, KDE Connect or GSConnect has to run.</source>
        <translation>Para enviar arquivos, o KDE Connect ou o GSConnect precisa estar em execução.</translation>
    </message>
    <message>
        <source>Sending to %1…</source>
        <translation>Enviando para %1…</translation>
    </message>
    <message>
        <source>On the way to %1.</source>
        <extracomment>The files have been handed over to the service that sends them.</extracomment>
        <translation>A caminho de %1.</translation>
    </message>
    <message>
        <source>Could not be sent to %1.</source>
        <translation>Não foi possível enviar para %1.</translation>
    </message>
    <message>
        <source>No paired device is in reach.</source>
        <translation>Nenhum dispositivo pareado está ao alcance.</translation>
    </message>
    <message numerus="yes">
        <source>Send %Ln files to %1</source>
        <extracomment>An entry of a menu. %1 is the name of a phone or of another computer.</extracomment>
        <translation>
            <numerusform>Enviar %Ln arquivo para %1</numerusform>
            <numerusform>Enviar %Ln arquivos para %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash.</source>
        <translation>Não foi possível mover %1 para a lixeira.</translation>
    </message>
    <message>
        <source>Default Camera</source>
        <extracomment>The first of the cameras to choose from: whichever the desktop takes.</extracomment>
        <translation>Câmera padrão</translation>
    </message>
    <message>
        <source>Minutes</source>
        <extracomment>What the empty field for the length of a timer says.</extracomment>
        <translation>Minutos</translation>
    </message>
    <message>
        <source>One minute less</source>
        <translation>Um minuto a menos</translation>
    </message>
    <message>
        <source>One minute more</source>
        <translation>Um minuto a mais</translation>
    </message>
    <message>
        <source>The time is up.</source>
        <extracomment>The timer has run down.</extracomment>
        <translation>O tempo acabou.</translation>
    </message>
    <message>
        <source>As of %1</source>
        <extracomment>Beside figures that could not be fetched anew; %1 is when they came, such as “14:05” or “24.12.26 14:05”.</extracomment>
        <translation>Dados de %1</translation>
    </message>
    <message>
        <source>Quotes are not available right now.</source>
        <extracomment>The prices of shares, which a server on the web tells.</extracomment>
        <translation>As cotações não estão disponíveis no momento.</translation>
    </message>
</context>
</TS>
