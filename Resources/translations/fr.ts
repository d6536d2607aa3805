<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>notch</name>
    <message>
        <source>Unpin</source>
        <extracomment>Let the notch close by itself again; the opposite of “Keep open”.</extracomment>
        <translation>Détacher</translation>
    </message>
    <message>
        <source>Keep open</source>
        <translation>Garder ouvert</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Good night</source>
        <translation>Bonne nuit</translation>
    </message>
    <message>
        <source>Good morning</source>
        <translation>Bonjour</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>Bonjour</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>Bonsoir</translation>
    </message>
    <message>
        <source>Choose what Home shows in Settings › Home screen.</source>
        <translation>Choisissez ce qu’affiche Accueil dans Paramètres › Écran d’accueil.</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>A note to oneself, such as one jots down.</extracomment>
        <translation>Note</translation>
    </message>
    <message>
        <source>Quick note… it saves as you type.</source>
        <translation>Note rapide… enregistrée au fil de la frappe.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Timer</source>
        <translation>Minuteur</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>Start the timer.</extracomment>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>Set the timer back to its beginning.</extracomment>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>A button of the script: “Edit” begins to change it, “Done” ends that.
----------
The time of the timer is over.</extracomment>
        <translation>Terminé</translation>
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
        <translation>Le temps reste visible à côté de l’encoche fermée.</translation>
    </message>
    <message>
        <source>Fennivar’s notch is on, so Kestrune is paused.</source>
        <translation>L’encoche de Fennivar est activée, Kestrune est donc en pause.</translation>
    </message>
    <message>
        <source>Turn off Notch in Fennivar to use Kestrune.</source>
        <translation>Désactivez l’encoche dans Fennivar pour utiliser Kestrune.</translation>
    </message>
    <message>
        <source>Home</source>
        <extracomment>The page that the notch opens with, like that of a telephone.</extracomment>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>À l’écoute</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Presse-papiers</translation>
    </message>
    <message>
        <source>Screenshots</source>
        <translation>Captures</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>Shelf</source>
        <extracomment>A place where files are put down for a while.</extracomment>
        <translation>Étagère</translation>
    </message>
    <message>
        <source>AI Usage</source>
        <translation>Usage de l’IA</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Météo</translation>
    </message>
    <message>
        <source>Stocks</source>
        <extracomment>The prices of shares.</extracomment>
        <translation>Bourse</translation>
    </message>
    <message>
        <source>Teleprompter</source>
        <translation>Prompteur</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Miroir</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>Processor, memory, disk and battery of this computer.</extracomment>
        <translation>Système</translation>
    </message>
    <message>
        <source>Greeting and date</source>
        <translation>Salutation et date</translation>
    </message>
    <message>
        <source>Today&apos;s events</source>
        <translation>Événements du jour</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Rappels</translation>
    </message>
    <message>
        <source>Latest copies</source>
        <translation>Dernières copies</translation>
    </message>
    <message>
        <source>Latest screenshots</source>
        <translation>Dernières captures</translation>
    </message>
    <message>
        <source>Hidden</source>
        <extracomment>Where a block of Home stands: nowhere. The others are its three columns.</extracomment>
        <translation>Masqué</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>On hover</source>
        <extracomment>Completes “Open the notch”: when the pointer rests on it.</extracomment>
        <translation>Au survol</translation>
    </message>
    <message>
        <source>On click</source>
        <translation>Au clic</translation>
    </message>
    <message>
        <source>More tools at fennivar.example</source>
        <translation>Plus sur fennivar.example</translation>
    </message>
    <message>
        <source>this app</source>
        <extracomment>Stands for the name of the program where it has none.</extracomment>
        <translation>cette app</translation>
    </message>
    <message>
        <source>Copy something and it appears here.
Passwords from password managers are never saved.</source>
        <translation>Ce que vous copiez apparaît ici.
Les mots de passe issus d’un gestionnaire ne sont jamais enregistrés.</translation>
    </message>
    <message>
        <source>Clipboard history is off.
Turn it on in Settings.</source>
        <translation>L’historique du presse-papiers est désactivé.
Activez-le dans les paramètres.</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Effacer l’historique</translation>
    </message>
    <message>
        <source>Nothing matches.</source>
        <translation>Aucun résultat.</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>In the menu of an entry: delete it from the history.</extracomment>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Copied</source>
        <extracomment>Shown in the place of what was just copied again.</extracomment>
        <translation>Copié</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>What an empty search field says, and the button that looks for a city.</extracomment>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>What the list shows: copies of every kind.</extracomment>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>What the list shows: the copies that are texts.</extracomment>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Liens</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>PDFs</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>The title of a copied picture, before its size.</extracomment>
        <translation>Image</translation>
    </message>
    <message>
        <source>Connect Codex or Claude Code to see your limits.</source>
        <translation>Connectez Codex ou Claude Code pour voir vos limites.</translation>
    </message>
    <message>
        <source>Reads the plan limits that Codex CLI saves in ~/.codex on this Mac.</source>
        <translation>Lit les limites de votre forfait que Codex CLI enregistre dans ~/.codex sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Adds up the tokens that Claude Code logs in ~/.claude on this Mac. Anthropic does not store your remaining limit locally.</source>
        <translation>Additionne les tokens que Claude Code consigne dans ~/.claude sur cet ordinateur. Anthropic n’enregistre pas en local ce qu’il vous reste.</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>7 derniers jours</translation>
    </message>
    <message>
        <source>Nothing leaves your Mac.</source>
        <translation>Rien ne quitte votre ordinateur.</translation>
    </message>
    <message>
        <source>Read again</source>
        <extracomment>On a round button: read the logs once more.</extracomment>
        <translation>Relire</translation>
    </message>
    <message>
        <source>Connect</source>
        <extracomment>A button: begin to read the usage of a program.</extracomment>
        <translation>Connecter</translation>
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
            <numerusform>%Ln % restant</numerusform>
            <numerusform>%Ln % restants</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lecture en cours…</translation>
    </message>
    <message>
        <source>No Codex activity found yet. Use Codex once and it appears here.</source>
        <translation>Aucune activité de Codex pour l’instant. Utilisez Codex une fois et elle apparaîtra ici.</translation>
    </message>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is a time, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>Actualisé&#x202f;: %1</translation>
    </message>
    <message>
        <source>5-hour window</source>
        <extracomment>The name of a limit that holds for five hours.</extracomment>
        <translation>Période de 5&#x202f;h</translation>
    </message>
    <message>
        <source>Weekly</source>
        <extracomment>The name of a limit that holds for a week.</extracomment>
        <translation>Semaine</translation>
    </message>
    <message>
        <source>No Claude Code activity found.</source>
        <translation>Aucune activité de Claude Code.</translation>
    </message>
    <message>
        <source>%1% of your budget</source>
        <extracomment>%1 is a number. There is little room.</extracomment>
        <translation>%1&#x202f;% de votre budget</translation>
    </message>
    <message>
        <source>%1% of your busiest block this week</source>
        <extracomment>%1 is a number; a block is five hours of work. There is little room.</extracomment>
        <translation>%1&#x202f;% du plus gros bloc de la semaine</translation>
    </message>
    <message>
        <source>This 5-hour block</source>
        <translation>Ce bloc de 5&#x202f;h</translation>
    </message>
    <message>
        <source>Resets: %1</source>
        <extracomment>When a limit begins anew; %1 is a time, such as “14:05” or “Mon 14:05”. There is little room.</extracomment>
        <translation>Réinit.&#x202f;: %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>%1 is a number, with decimals where it is the change of a share’s price.</extracomment>
        <translation>%1&#x202f;%</translation>
    </message>
    <message>
        <source>Drop files here to keep them handy.
Drag them out anywhere, or AirDrop them.</source>
        <translation>Déposez des fichiers ici pour les garder sous la main.
Glissez-les où vous voulez ou envoyez-les à un appareil.</translation>
    </message>
    <message>
        <source>Allow %1 to read your screenshots folder in
System Settings › Privacy &amp; Security › Files and Folders.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>Autorisez %1 à lire votre dossier de captures d’écran&#x202f;:
les droits du dossier l’en empêchent.</translation>
    </message>
    <message>
        <source>Take a screenshot (⇧⌘4) and it appears here.
Drag it into any app, or right-click for more.</source>
        <translation>Prenez une capture d’écran (Impr. écran) et elle apparaît ici.
Glissez-la dans une app ou faites un clic droit pour plus d’options.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>A button that opens the settings of the desktop.</extracomment>
        <translation>Aller aux paramètres</translation>
    </message>
    <message>
        <source>Click to open · drag into any app · right-click to copy, AirDrop or add to the Shelf.</source>
        <translation>Clic&#x202f;: ouvrir · glisser dans une app · clic droit&#x202f;: copier, envoyer ou Étagère</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>Envoyer à un appareil</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>A button: take all files off the shelf.</extracomment>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Take a file off the shelf; the file itself stays where it is.</extracomment>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Paste your script here. It scrolls right under the camera so you keep eye contact.</source>
        <translation>Collez votre texte ici. Il défile juste sous la caméra pour que vous gardiez le contact visuel.</translation>
    </message>
    <message>
        <source>Script</source>
        <extracomment>Name of the field for the text that is read aloud.</extracomment>
        <translation>Texte à lire</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>A button: scroll the script from its beginning again.</extracomment>
        <translation>Recommencer</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>How fast the script scrolls.</extracomment>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Text %1</source>
        <extracomment>%1 is the size of the letters in points. There is little room.</extracomment>
        <translation>Texte %1</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Texte plus petit</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Texte plus grand</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Add to Shelf</source>
        <translation>Ajouter à l’étagère</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>In the menu of a screenshot: copy the picture.</extracomment>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Type the symbols that you want to follow.</source>
        <translation>Saisissez les symboles que vous voulez suivre.</translation>
    </message>
    <message>
        <source>Symbols, separated by commas (AAPL, TSLA, ^GSPC, BTC-USD)</source>
        <translation>Symboles séparés par des virgules (AAPL, TSLA, ^GSPC, BTC-USD)</translation>
    </message>
    <message>
        <source>Delayed quotes from Yahoo Finance.</source>
        <translation>Cours différés de Yahoo Finance.</translation>
    </message>
    <message>
        <source>Edit symbols</source>
        <translation>Modifier la liste</translation>
    </message>
    <message>
        <source>Choose a city to see its weather.</source>
        <translation>Choisissez une ville pour voir sa météo.</translation>
    </message>
    <message>
        <source>City</source>
        <extracomment>What the empty field for the name of a city says.</extracomment>
        <translation>Ville</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Utiliser ma position</translation>
    </message>
    <message>
        <source>Change city</source>
        <translation>Changer de ville</translation>
    </message>
    <message>
        <source>Forecast by Open-Meteo. Only the city&apos;s coordinates are sent.</source>
        <translation>Prévisions d’Open-Meteo. Seules les coordonnées de la ville sont envoyées.</translation>
    </message>
    <message>
        <source>Weather is not available right now.</source>
        <translation>La météo n’est pas disponible pour le moment.</translation>
    </message>
    <message>
        <source>City not found.</source>
        <translation>Ville introuvable.</translation>
    </message>
    <message>
        <source>My location</source>
        <extracomment>In the place of a city’s name.</extracomment>
        <translation>Ma position</translation>
    </message>
    <message>
        <source>Location not available. Type a city instead.</source>
        <translation>Position indisponible. Saisissez plutôt une ville.</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <extracomment>%1 is a list of the symbols of shares.</extracomment>
        <translation>Introuvable&#x202f;: %1</translation>
    </message>
    <message>
        <source>Wind %1 mph</source>
        <extracomment>%1 is a speed in miles an hour.</extracomment>
        <translation>Vent %1&#x202f;mph</translation>
    </message>
    <message>
        <source>Wind %1 km/h</source>
        <extracomment>%1 is a speed in kilometres an hour.</extracomment>
        <translation>Vent %1&#x202f;km/h</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Allow %1 to control Music or Spotify in
System Settings › Privacy &amp; Security › Automation.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>Autorisez %1 à contrôler les lecteurs dans
les réglages de confidentialité du bureau.</translation>
    </message>
    <message>
        <source>Play something in Music or Spotify
and it shows up here.</source>
        <translation>Lancez un titre dans un lecteur multimédia
et il apparaît ici.</translation>
    </message>
    <message>
        <source>Previous</source>
        <extracomment>The previous song.</extracomment>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>The next song.</extracomment>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>charging</source>
        <extracomment>Of the battery, after its level: “80% · charging”.</extracomment>
        <translation>en charge</translation>
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
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is an amount with its unit, such as 12.3 GB.</extracomment>
        <translation>%1 libres</translation>
    </message>
    <message>
        <source>No camera found.</source>
        <translation>Aucune caméra trouvée.</translation>
    </message>
    <message>
        <source>Allow %1 to use the camera in
System Settings › Privacy &amp; Security › Camera.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>Autorisez %1 à utiliser la caméra dans
les réglages de confidentialité du bureau.</translation>
    </message>
    <message>
        <source>Events</source>
        <extracomment>Heading of the list of appointments.</extracomment>
        <translation>Événements</translation>
    </message>
    <message>
        <source>Allow Calendar</source>
        <translation>Autoriser l’accès</translation>
    </message>
    <message>
        <source>Nothing else today or tomorrow.</source>
        <translation>Plus rien aujourd’hui ni demain.</translation>
    </message>
    <message>
        <source>Allow Reminders</source>
        <translation>Autoriser l’accès</translation>
    </message>
    <message>
        <source>All done</source>
        <extracomment>Instead of a list: no reminder is left.</extracomment>
        <translation>Tout est fait</translation>
    </message>
    <message>
        <source>Nothing else today.</source>
        <translation>Plus rien aujourd’hui.</translation>
    </message>
    <message>
        <source>Complete</source>
        <extracomment>A verb, on the circle before a reminder: mark it as done.</extracomment>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>Event</source>
        <extracomment>The title of an appointment that has none.</extracomment>
        <translation>Événement</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Demain</translation>
    </message>
    <message>
        <source>All day</source>
        <extracomment>In the place of an appointment’s time.</extracomment>
        <translation>Toute la journée</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Want more? Meet Fennivar</source>
        <translation>Envie de plus&#x202f;? Découvrez Fennivar</translation>
    </message>
    <message>
        <source>Kestrune is one piece of Fennivar, the all-in-one app that makes your Mac work the way it should.</source>
        <translation>Kestrune est un élément de Fennivar, l’app tout-en-un qui fait fonctionner votre ordinateur comme il se doit.</translation>
    </message>
    <message>
        <source>Snap windows into place with a key or a drag</source>
        <translation>Placez les fenêtres avec une touche ou en glissant</translation>
    </message>
    <message>
        <source>Find files, apps and settings from one field</source>
        <translation>Trouvez fichiers, apps et paramètres depuis un seul champ</translation>
    </message>
    <message>
        <source>See what fills your disk and free it up</source>
        <translation>Voyez ce qui remplit votre disque et libérez de la place</translation>
    </message>
    <message>
        <source>Keep an eye on the battery and make it last</source>
        <translation>Surveillez la batterie et faites-la durer</translation>
    </message>
    <message>
        <source>Discover Fennivar ↗</source>
        <translation>Découvrir Fennivar ↗</translation>
    </message>
    <message>
        <source>Opening</source>
        <extracomment>Heading of the settings that say how the notch opens.</extracomment>
        <translation>Ouverture</translation>
    </message>
    <message>
        <source>Open the notch</source>
        <extracomment>Followed by the choice of “On hover” and “On click”.</extracomment>
        <translation>Ouvrir l’encoche</translation>
    </message>
    <message>
        <source>Hover delay</source>
        <extracomment>How long the pointer rests on the notch before it opens; beside a slider.</extracomment>
        <translation>Délai de survol</translation>
    </message>
    <message>
        <source>Open and close with ⌃⌥⌘N</source>
        <translation>Ouvrir et fermer avec Ctrl+Alt+Super+N</translation>
    </message>
    <message>
        <source>Show the song or timer beside the closed notch</source>
        <translation>Afficher le titre ou le minuteur à côté de l’encoche fermée</translation>
    </message>
    <message>
        <source>Show new screenshots beside the notch</source>
        <translation>Afficher les nouvelles captures à côté de l’encoche</translation>
    </message>
    <message>
        <source>Displays</source>
        <extracomment>Heading of the settings that are about monitors.</extracomment>
        <translation>Écrans</translation>
    </message>
    <message>
        <source>Show on every display</source>
        <translation>Afficher sur chaque écran</translation>
    </message>
    <message>
        <source>Draw a notch on displays without one</source>
        <translation>Dessiner une encoche sur les écrans qui n’en ont pas</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Confidentialité</translation>
    </message>
    <message>
        <source>Everything stays on this Mac. Weather asks Open-Meteo for your city&apos;s forecast and Stocks asks Yahoo Finance for quotes; nothing else goes online.</source>
        <translation>Tout reste sur cet ordinateur. Météo demande à Open-Meteo les prévisions pour votre ville et Bourse demande les cours à Yahoo Finance&#x202f;; rien d’autre ne part en ligne.</translation>
    </message>
    <message>
        <source>Keep a clipboard history</source>
        <translation>Conserver l’historique du presse-papiers</translation>
    </message>
    <message>
        <source>Read Codex usage (~/.codex)</source>
        <translation>Lire l’usage de Codex (~/.codex)</translation>
    </message>
    <message>
        <source>Read Claude Code usage (~/.claude)</source>
        <translation>Lire l’usage de Claude Code (~/.claude)</translation>
    </message>
    <message>
        <source>Temperatures in °F</source>
        <translation>Températures en °F</translation>
    </message>
    <message>
        <source>Home screen</source>
        <translation>Écran d’accueil</translation>
    </message>
    <message>
        <source>Restore default layout</source>
        <translation>Rétablir la disposition par défaut</translation>
    </message>
    <message>
        <source>Leave it at 0 to compare with your busiest block of the week. Anthropic does not publish limits in tokens, so set your own if you know it.</source>
        <translation>Laissez 0 pour comparer avec votre plus gros bloc de la semaine. Anthropic ne publie pas de limites en tokens&#x202f;; indiquez la vôtre si vous la connaissez.</translation>
    </message>
    <message>
        <source>Claude 5-hour budget (tokens)</source>
        <translation>Budget Claude pour 5&#x202f;h (tokens)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Kestrune Settings</source>
        <translation>Paramètres de Kestrune</translation>
    </message>
    <message>
        <source>This copy gets its updates with its package, or from whoever built it.</source>
        <translation>Cette copie est mise à jour avec son paquet ou par la personne qui l’a compilée.</translation>
    </message>
    <message>
        <source>Open Kestrune at login</source>
        <translation>Lancer Kestrune à l’ouverture de session</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Installer les mises à jour automatiquement</translation>
    </message>
    <message>
        <source>Open Notch</source>
        <translation>Ouvrir l’encoche</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>Get more tools: Fennivar ↗</source>
        <translation>Plus d’outils&#x202f;: Fennivar ↗</translation>
    </message>
    <message>
        <source>Quit Kestrune</source>
        <translation>Quitter Kestrune</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>%1 is a number of milliseconds.</extracomment>
        <translation>%1&#x202f;ms</translation>
    </message>
    <message>
        <source>Kestrune then looks once a day, downloads what is new and asks before it is installed.</source>
        <translation>Kestrune cherche alors une fois par jour, télécharge les nouveautés et demande avant de les installer.</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Mise à jour logicielle</translation>
    </message>
    <message>
        <source>The list of releases is not signed by Kestrune’s makers, so it was ignored.</source>
        <translation>La liste des versions n’est pas signée par les auteurs de Kestrune&#x202f;; elle a été ignorée.</translation>
    </message>
    <message>
        <source>The list of releases could not be read. Are you online?</source>
        <translation>La liste des versions n’a pas pu être lue. Êtes-vous en ligne&#x202f;?</translation>
    </message>
    <message>
        <source>The list of releases is older than one seen before, so it was ignored.</source>
        <translation>La liste des versions est plus ancienne qu’une liste déjà vue&#x202f;; elle a été ignorée.</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Are you online?</source>
        <translation>La mise à jour n’a pas pu être téléchargée. Êtes-vous en ligne&#x202f;?</translation>
    </message>
    <message>
        <source>The update is not what Kestrune’s makers signed, so it was not kept.</source>
        <translation>La mise à jour n’est pas celle que les auteurs de Kestrune ont signée&#x202f;; elle n’a pas été conservée.</translation>
    </message>
    <message>
        <source>The update could not be saved. Is the disk full?</source>
        <translation>La mise à jour n’a pas pu être enregistrée. Le disque est-il plein&#x202f;?</translation>
    </message>
    <message>
        <source>The downloaded update was changed or removed.</source>
        <translation>La mise à jour téléchargée a été modifiée ou supprimée.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>Kestrune is up to date</source>
        <translation>Kestrune est à jour</translation>
    </message>
    <message>
        <source>Kestrune %1 is available</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Kestrune %1 est disponible</translation>
    </message>
    <message>
        <source>Downloading Kestrune %1…</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Téléchargement de Kestrune %1…</translation>
    </message>
    <message>
        <source>Kestrune %1 is ready to install</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Kestrune %1 est prêt à être installé</translation>
    </message>
    <message>
        <source>Kestrune could not be updated</source>
        <translation>Kestrune n’a pas pu être mis à jour</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>La version %1 est la plus récente.</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>Vous avez la version %1.</translation>
    </message>
    <message>
        <source>It was checked: it comes from Kestrune’s makers.</source>
        <translation>Vérifié&#x202f;: vient bien des auteurs de Kestrune.</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>A verb, on a button.</extracomment>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>Install…</source>
        <translation>Installer…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>A button that closes the window of an update.</extracomment>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Bound to %1</source>
        <extracomment>%1 is a combination of keys, as the desktop writes it.</extracomment>
        <translation>Raccourci : %1</translation>
    </message>
    <message>
        <source>Another program has these keys. In the desktop’s settings, bind others to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>Un autre programme utilise ces touches. Dans les réglages du bureau, attribuez-en d’autres à : %1</translation>
    </message>
    <message>
        <source>No keys are bound. In the desktop’s settings, bind some to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>Aucune touche n’est attribuée. Dans les réglages du bureau, attribuez-en à : %1</translation>
    </message>
    <message>
        <source>The list of releases has expired, so it was ignored. Is the clock set right?</source>
        <translation>La liste des versions a expiré&#x202f;; elle a été ignorée. L’horloge est-elle à l’heure&#x202f;?</translation>
    </message>
    <message>
        <source>The list of releases is dated in the future, so it was ignored. Is the clock set right?</source>
        <translation>La liste des versions porte une date future&#x202f;; elle a été ignorée. L’horloge est-elle à l’heure&#x202f;?</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>The name of a calendar in quotation marks.</extracomment>
        <translation>«&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>Could not be read in full: %1</source>
        <extracomment>%1 is the name of a calendar in quotation marks, or several with commas between them.</extracomment>
        <translation>Lecture incomplète&#x202f;: %1</translation>
    </message>
    <message>
        <source>Renewed; figures of %1</source>
        <extracomment>A limit has begun anew since it was read; %1 is when that was, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>Réinitialisé&#x202f;; données de %1</translation>
    </message>
    <message>
        <source>All day, since %1</source>
        <extracomment>In the place of an appointment’s time; %1 is the day before today when it began, such as “Mon”.</extracomment>
        <translation>Toute la journée, depuis %1</translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>When an appointment began; %1 is a day before today and a time, such as “Mon 14:05”.</extracomment>
        <translation>Depuis %1</translation>
    </message>
    <message>
        <source>Hide over full-screen windows</source>
        <extracomment>The closed notch; displays with a camera housing keep theirs.</extracomment>
        <translation>Masquer au-dessus des fenêtres en plein écran</translation>
    </message>
    <message>
        <source>Panels at the top edge</source>
        <extracomment>Other programs&apos; bars along the top of the screen; followed by a choice of where the notch is.</extracomment>
        <translation>Panneaux au bord supérieur</translation>
    </message>
    <message>
        <source>Automatic</source>
        <extracomment>Completes “Panels at the top edge”: below them, but around a camera.</extracomment>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Notch over them</source>
        <extracomment>Completes “Panels at the top edge”: the notch lies over them.</extracomment>
        <translation>L’encoche par-dessus</translation>
    </message>
    <message>
        <source>Notch below them</source>
        <extracomment>Completes “Panels at the top edge”: the notch hangs below them.</extracomment>
        <translation>L’encoche en dessous</translation>
    </message>
    <message>
        <source>Press the keys…</source>
        <translation>Appuyez sur les touches…</translation>
    </message>
    <message>
        <source>Keys that open and close the notch: %1</source>
        <translation>Touches qui ouvrent et ferment l’encoche : %1</translation>
    </message>
    <message>
        <source>Keys</source>
        <extracomment>Beside a button that shows the keys of the hot key.</extracomment>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Open and close with %1</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>Ouvrir et fermer avec %1</translation>
    </message>
    <message>
        <source>Pin</source>
        <extracomment>In the menu of an entry of the clipboard history: keep it until it is deleted.</extracomment>
        <translation>Épingler</translation>
    </message>
    <message>
        <source>Pinned</source>
        <extracomment>Said of an entry of the clipboard history that is kept until the user deletes it.</extracomment>
        <translation>Épinglé</translation>
    </message>
    <message>
        <source>Cut</source>
        <extracomment>In the menu of a text field, as “Copy”, “Paste” and “Select All”.</extracomment>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Play and pause the teleprompter with Ctrl+Alt+Super+P</source>
        <translation>Lire et mettre en pause le prompteur avec Ctrl+Alt+Super+P</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mettre à la corbeille</translation>
    </message>
    <message>
        <source>Choose the camera</source>
        <translation>Choisir la caméra</translation>
    </message>
    <message>
        <source>The desktop will ask you for the camera.</source>
        <translation>Le bureau va vous demander l’accès à la caméra.</translation>
    </message>
    <message>
        <source>Turn On Camera</source>
        <translation>Allumer la caméra</translation>
    </message>
    <message>
        <source>You refused the camera before, and the desktop remembers it.
Allow it in the desktop’s privacy settings.</source>
        <translation>Vous avez déjà refusé la caméra, et le bureau s’en souvient.
Autorisez-la dans ses réglages de confidentialité.</translation>
    </message>
    <message>
        <source>Cannot be reached now</source>
        <translation>Inaccessible pour le moment</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>How long the rest of the script takes to scroll past. %1 is a time such as 3:05.</extracomment>
        <translation>Reste %1</translation>
    </message>
    <message>
        <source>Play or pause the teleprompter</source>
        <extracomment>What a hot key does, in the desktop&apos;s settings.</extracomment>
        <translation>Lire ou mettre en pause le prompteur</translation>
    </message>
    <message>
        <source>To send files, KDE Connect or GSConnect has to run.</source>
        <translation>Pour envoyer des fichiers, KDE Connect ou GSConnect doit être lancé.</translation>
    </message>
    <message>
        <source>Sending to %1…</source>
        <translation>Envoi vers %1…</translation>
    </message>
    <message>
        <source>On the way to %1.</source>
        <extracomment>The files have been handed over to the service that sends them.</extracomment>
        <translation>En route vers %1.</translation>
    </message>
    <message>
        <source>Could not be sent to %1.</source>
        <translation>Envoi vers %1 impossible.</translation>
    </message>
    <message>
        <source>No paired device is in reach.</source>
        <translation>Aucun appareil jumelé n’est à portée.</translation>
    </message>
    <message numerus="yes">
        <source>Send %Ln files to %1</source>
        <extracomment>An entry of a menu. %1 is the name of a phone or of another computer.</extracomment>
        <translation>
            <numerusform>Envoyer %Ln fichier vers %1</numerusform>
            <numerusform>Envoyer %Ln fichiers vers %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash.</source>
        <translation>Impossible de mettre %1 à la corbeille.</translation>
    </message>
    <message>
        <source>Default Camera</source>
        <extracomment>The first of the cameras to choose from: whichever the desktop takes.</extracomment>
        <translation>Caméra par défaut</translation>
    </message>
    <message>
        <source>Minutes</source>
        <extracomment>What the empty field for the length of a timer says.</extracomment>
        <translation>Minutes</translation>
    </message>
    <message>
        <source>One minute less</source>
        <translation>Une minute de moins</translation>
    </message>
    <message>
        <source>One minute more</source>
        <translation>Une minute de plus</translation>
    </message>
    <message>
        <source>The time is up.</source>
        <extracomment>The timer has run down.</extracomment>
        <translation>Le temps est écoulé.</translation>
    </message>
    <message>
        <source>As of %1</source>
        <extracomment>Beside figures that could not be fetched anew; %1 is when they came, such as “14:05” or “24.12.26 14:05”.</extracomment>
        <translation>Données de %1</translation>
    </message>
    <message>
        <source>Quotes are not available right now.</source>
        <extracomment>The prices of shares, which a server on the web tells.</extracomment>
        <translation>Les cours ne sont pas disponibles pour le moment.</translation>
    </message>
</context>
</TS>
