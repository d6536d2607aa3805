<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>notch</name>
    <message>
        <source>Unpin</source>
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
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zerar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>%d min</source>
        <translation>%d min</translation>
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
        <translation>Excluir</translation>
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
        <translation>Tudo</translation>
    </message>
    <message>
        <source>Text</source>
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
        <translation>Imagem</translation>
    </message>
    <message>
        <source>Connect Codex or Claude Code to see your limits.</source>
        <translation>Conecte o Codex ou o Claude Code para ver seus limites.</translation>
    </message>
    <message>
        <source>Reads the plan limits that Codex CLI saves in ~/.codex on this Mac.</source>
        <translation>Lê os limites do seu plano que o Codex CLI salva em ~/.codex neste Mac.</translation>
    </message>
    <message>
        <source>Adds up the tokens that Claude Code logs in ~/.claude on this Mac. Anthropic does not store your remaining limit locally.</source>
        <translation>Soma os tokens que o Claude Code registra em ~/.claude neste Mac. A Anthropic não guarda localmente o que resta do seu limite.</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Últimos 7 dias</translation>
    </message>
    <message>
        <source>Nothing leaves your Mac.</source>
        <translation>Nada sai do seu Mac.</translation>
    </message>
    <message>
        <source>Read again</source>
        <translation>Ler de novo</translation>
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
        <translation>%d%% restantes</translation>
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
        <source>Updated %@</source>
        <translation>Atualizado: %@</translation>
    </message>
    <message>
        <source>5-hour window</source>
        <translation>Período de 5 h</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Semanal</translation>
    </message>
    <message>
        <source>No Claude Code activity found.</source>
        <translation>Nenhuma atividade do Claude Code.</translation>
    </message>
    <message>
        <source>%d%% of your budget</source>
        <translation>%d%% do seu orçamento</translation>
    </message>
    <message>
        <source>%d%% of your busiest block this week</source>
        <translation>%d%% do seu maior bloco da semana</translation>
    </message>
    <message>
        <source>This 5-hour block</source>
        <translation>Este bloco de 5 h</translation>
    </message>
    <message>
        <source>Resets: %@</source>
        <translation>Renovação: %@</translation>
    </message>
    <message>
        <source>%d%%</source>
        <translation>%d%%</translation>
    </message>
    <message>
        <source>Drop files here to keep them handy.
Drag them out anywhere, or AirDrop them.</source>
        <translation>Solte arquivos aqui para tê-los à mão.
Arraste-os para onde quiser ou envie-os com AirDrop.</translation>
    </message>
    <message>
        <source>Allow %@ to read your screenshots folder in
System Settings › Privacy &amp; Security › Files and Folders.</source>
        <translation>Permita que %@ leia sua pasta de capturas de tela em
Configurações do sistema › Privacidade e segurança › Arquivos e pastas.</translation>
    </message>
    <message>
        <source>Take a screenshot (⇧⌘4) and it appears here.
Drag it into any app, or right-click for more.</source>
        <translation>Faça uma captura de tela (⇧⌘4) e ela aparecerá aqui.
Arraste-a para qualquer app ou clique com o botão direito para mais opções.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Abrir configurações</translation>
    </message>
    <message>
        <source>Click to open · drag into any app · right-click to copy, AirDrop or add to the Shelf.</source>
        <translation>Clique: abrir · arraste para um app · clique direito: copiar, AirDrop ou Prateleira</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Mostrar na pasta</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>AirDrop</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Esvaziar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Paste your script here. It scrolls right under the camera so you keep eye contact.</source>
        <translation>Cole seu roteiro aqui. Ele passa logo abaixo da câmera para você manter o contato visual.</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Roteiro</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Recomeçar</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidade</translation>
    </message>
    <message>
        <source>Text %d</source>
        <translation>Texto %d</translation>
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
        <translation>Minha localização</translation>
    </message>
    <message>
        <source>Location not available. Type a city instead.</source>
        <translation>Localização não disponível. Digite uma cidade.</translation>
    </message>
    <message>
        <source>Not found: %@</source>
        <translation>Não encontrado: %@</translation>
    </message>
    <message>
        <source>Wind %@ mph</source>
        <translation>Vento %@ mph</translation>
    </message>
    <message>
        <source>Wind %@ km/h</source>
        <translation>Vento %@ km/h</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>Allow %@ to control Music or Spotify in
System Settings › Privacy &amp; Security › Automation.</source>
        <translation>Permita que %@ controle o Music ou o Spotify em
Configurações do sistema › Privacidade e segurança › Automação.</translation>
    </message>
    <message>
        <source>Play something in Music or Spotify
and it shows up here.</source>
        <translation>Reproduza algo no Music ou no Spotify
e aparecerá aqui.</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Próxima</translation>
    </message>
    <message>
        <source>charging</source>
        <translation>carregando</translation>
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
        <translation>Memória</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>%@ free</source>
        <translation>%@ livres</translation>
    </message>
    <message>
        <source>No camera found.</source>
        <translation>Nenhuma câmera encontrada.</translation>
    </message>
    <message>
        <source>Allow %@ to use the camera in
System Settings › Privacy &amp; Security › Camera.</source>
        <translation>Permita que %@ use a câmera em
Configurações do sistema › Privacidade e segurança › Câmera.</translation>
    </message>
    <message>
        <source>Events</source>
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
        <translation>Tudo feito</translation>
    </message>
    <message>
        <source>Nothing else today.</source>
        <translation>Nada mais hoje.</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Amanhã</translation>
    </message>
    <message>
        <source>All day</source>
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
        <translation>O Kestrune é uma parte do Fennivar, o app completo que faz seu Mac funcionar como deveria.</translation>
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
        <translation>Abertura</translation>
    </message>
    <message>
        <source>Open the notch</source>
        <translation>Abrir o notch</translation>
    </message>
    <message>
        <source>Hover delay</source>
        <translation>Atraso ao apontar</translation>
    </message>
    <message>
        <source>Open and close with ⌃⌥⌘N</source>
        <translation>Abrir e fechar com ⌃⌥⌘N</translation>
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
        <translation>Tudo fica neste Mac. Clima pede ao Open-Meteo a previsão da sua cidade e Bolsa pede as cotações ao Yahoo Finance; nada mais vai para a internet.</translation>
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
        <source>Kestrune %@ is available</source>
        <translation>O Kestrune %@ está disponível</translation>
    </message>
    <message>
        <source>Downloading Kestrune %@…</source>
        <translation>Baixando o Kestrune %@…</translation>
    </message>
    <message>
        <source>Kestrune %@ is ready to install</source>
        <translation>O Kestrune %@ está pronto para instalar</translation>
    </message>
    <message>
        <source>Kestrune could not be updated</source>
        <translation>Não foi possível atualizar o Kestrune</translation>
    </message>
    <message>
        <source>Version %@ is the newest one.</source>
        <translation>A versão %@ é a mais recente.</translation>
    </message>
    <message>
        <source>You have version %@.</source>
        <translation>Você tem a versão %@.</translation>
    </message>
    <message>
        <source>It was checked: it comes from Kestrune’s makers.</source>
        <translation>Verificado: vem dos criadores do Kestrune.</translation>
    </message>
    <message>
        <source>Download</source>
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
        <translation>Mais tarde</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
</TS>
