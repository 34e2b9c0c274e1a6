<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>CommandLine</name>
    <message>
        <source>FILE</source>
        <translation>FICHIER</translation>
    </message>
    <message>
        <source>open the settings, starting the program if need be</source>
        <translation>ouvrir les paramètres, en démarrant le programme si nécessaire</translation>
    </message>
    <message>
        <source>switch expansion off or on in the running program</source>
        <translation>désactiver ou activer le remplacement dans le programme en cours d’exécution</translation>
    </message>
    <message>
        <source>end the running program</source>
        <translation>quitter le programme en cours d’exécution</translation>
    </message>
    <message>
        <source>let Tessarin judge keys and write into other applications, and switch the session&apos;s accessibility on</source>
        <translation>autoriser Tessarin à analyser les touches et à écrire dans les autres applications, et activer les fonctions d’accessibilité de la session</translation>
    </message>
    <message>
        <source>take that back</source>
        <translation>retirer cette autorisation</translation>
    </message>
    <message>
        <source>add the snippets of a file to your own</source>
        <translation>ajouter les fragments d’un fichier aux vôtres</translation>
    </message>
    <message>
        <source>write your own snippets into a file</source>
        <translation>enregistrer vos fragments dans un fichier</translation>
    </message>
    <message>
        <source>QUERY</source>
        <translation>RECHERCHE</translation>
    </message>
    <message>
        <source>list what the popup would offer, best first</source>
        <translation>lister ce que proposerait la fenêtre contextuelle, le meilleur en premier</translation>
    </message>
    <message>
        <source>show this text</source>
        <translation>afficher cette aide</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>afficher la version</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>NOMBRE</translation>
    </message>
    <message>
        <source>with --search: list at most so many (8)</source>
        <translation>avec --search&#xa0;: lister au plus ce nombre d’entrées (8)</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>option %1 inconnue</translation>
    </message>
    <message>
        <source>unexpected argument %1</source>
        <translation>argument %1 inattendu</translation>
    </message>
    <message>
        <source>%1 cannot be combined</source>
        <translation>%1 ne peut pas être combiné avec une autre option</translation>
    </message>
    <message>
        <source>%1 needs a file</source>
        <translation>%1 nécessite un fichier</translation>
    </message>
    <message>
        <source>%1 needs a number from 1 on</source>
        <translation>%1 nécessite un nombre supérieur ou égal à 1</translation>
    </message>
    <message>
        <source>%1 takes no argument</source>
        <translation>%1 n’accepte pas d’argument</translation>
    </message>
    <message>
        <source>%1 needs an argument: %2</source>
        <translation>%1 nécessite un argument&#xa0;: %2</translation>
    </message>
    <message>
        <source>usage: tessarin [OPTION]</source>
        <translation>Utilisation&#xa0;: tessarin [OPTION]</translation>
    </message>
    <message>
        <source>Expands shortcodes such as :smile in any application. Started again without an option, it opens the
settings of the program that runs.</source>
        <translation>Remplace des abréviations comme :smile dans toutes les applications. Relancé sans option, ouvre les
paramètres du programme en cours d’exécution.</translation>
    </message>
    <message>
        <source>TRIGGER</source>
        <translation>ABRÉVIATION</translation>
    </message>
    <message>
        <source>list your own snippets</source>
        <translation>lister vos fragments</translation>
    </message>
    <message>
        <source>TRIGGER TEXT</source>
        <translation>ABRÉVIATION TEXTE</translation>
    </message>
    <message>
        <source>add a snippet to your own</source>
        <translation>ajouter un fragment aux vôtres</translation>
    </message>
    <message>
        <source>remove your snippets with that trigger</source>
        <translation>supprimer vos fragments qui ont cette abréviation</translation>
    </message>
    <message>
        <source>with --list or --search: write a JSON array</source>
        <translation>avec --list ou --search&#xa0;: écrire un tableau JSON</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>with --add: what the popup calls it (the trigger)</source>
        <translation>avec --add&#xa0;: nom affiché dans la liste (par défaut, l’abréviation)</translation>
    </message>
    <message>
        <source>WORDS</source>
        <translation>MOTS</translation>
    </message>
    <message>
        <source>with --add: further words to find it by, between commas</source>
        <translation>avec --add&#xa0;: autres mots-clés pour le trouver, séparés par des virgules</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 nécessite %2</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>the running instance does not answer</source>
        <translation>le programme en cours d’exécution ne répond pas</translation>
    </message>
    <message>
        <source>Tessarin may judge keys and write into other applications.</source>
        <translation>Tessarin est autorisé à analyser les touches et à écrire dans les autres applications.</translation>
    </message>
    <message>
        <source>The session&apos;s accessibility is switched on, for later sessions too. Qt applications and browsers that are open now notice it when they are started again; until then, text is pasted there.</source>
        <translation>Les fonctions d’accessibilité de la session sont activées, y compris pour les sessions suivantes. Les applications Qt et les navigateurs déjà ouverts n’en tiendront compte qu’après avoir été redémarrés&#xa0;; d’ici là, le texte y est collé.</translation>
    </message>
    <message>
        <source>The session&apos;s accessibility could not be switched on; text will be pasted.</source>
        <translation>Impossible d’activer les fonctions d’accessibilité de la session&#xa0;; le texte sera collé.</translation>
    </message>
    <message>
        <source>Tessarin no longer judges keys or writes into other applications.</source>
        <translation>Tessarin n’analyse plus les touches et n’écrit plus dans les autres applications.</translation>
    </message>
    <message>
        <source>no instance is running</source>
        <translation>Tessarin n’est pas en cours d’exécution</translation>
    </message>
    <message>
        <source>no display to open a window on; try from a desktop session</source>
        <translation>aucun affichage sur lequel ouvrir une fenêtre&#xa0;; essayez depuis une session de bureau</translation>
    </message>
</context>
<context>
    <name>Importers</name>
    <message>
        <source>its text would be filled in here</source>
        <translation>une partie de son texte serait remplacée ici</translation>
    </message>
    <message>
        <source>it places the caret</source>
        <translation>il déplace le curseur</translation>
    </message>
    <message>
        <source>it runs a script</source>
        <translation>il exécute un script</translation>
    </message>
    <message>
        <source>it inserts a file</source>
        <translation>il insère un fichier</translation>
    </message>
    <message>
        <source>it presses the key %1</source>
        <translation>il appuie sur la touche %1</translation>
    </message>
    <message>
        <source>it writes a date in another form</source>
        <translation>il écrit une date sous une autre forme</translation>
    </message>
    <message>
        <source>it is a script</source>
        <translation>c’est un script</translation>
    </message>
    <message>
        <source>it has a hotkey only</source>
        <translation>il n’a qu’un raccourci clavier</translation>
    </message>
    <message>
        <source>it has no abbreviation</source>
        <translation>il n’a pas d’abréviation</translation>
    </message>
    <message>
        <source>it works in every window here</source>
        <translation>il fonctionne ici dans toutes les fenêtres</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>ligne %1</translation>
    </message>
    <message>
        <source>it has more than four columns; a text with separators needs quotes</source>
        <translation>plus de quatre colonnes&#xa0;; un texte contenant des séparateurs doit être entre guillemets</translation>
    </message>
    <message>
        <source>it has a regular expression</source>
        <translation>il contient une expression rationnelle</translation>
    </message>
    <message>
        <source>it asks by a form</source>
        <translation>il affiche un formulaire</translation>
    </message>
    <message>
        <source>it inserts an image</source>
        <translation>il insère une image</translation>
    </message>
    <message>
        <source>its text is formatted</source>
        <translation>son texte est mis en forme</translation>
    </message>
    <message>
        <source>it is not a match</source>
        <translation>ce n’est pas un fragment</translation>
    </message>
    <message>
        <source>it has no trigger</source>
        <translation>il n’a pas d’abréviation</translation>
    </message>
    <message>
        <source>it uses %1, which is not among its variables</source>
        <translation>il utilise %1, qui ne figure pas parmi ses variables</translation>
    </message>
    <message>
        <source>it has a variable of the kind %1</source>
        <translation>il contient une variable de type %1</translation>
    </message>
    <message>
        <source>its text does not follow the case of what is typed</source>
        <translation>son texte ne suit pas la casse de ce qui est saisi</translation>
    </message>
    <message>
        <source>its trigger is too long to type</source>
        <translation>son abréviation est trop longue pour être saisie</translation>
    </message>
    <message>
        <source>nothing of its trigger can be part of a shortcode</source>
        <translation>aucun caractère de son abréviation ne peut être saisi après le caractère déclencheur</translation>
    </message>
    <message>
        <source>it has no text</source>
        <translation>il n’a pas de texte</translation>
    </message>
    <message>
        <source>its trigger is now %1</source>
        <translation>son abréviation est maintenant %1</translation>
    </message>
    <message numerus="yes">
        <source>Left out: %n</source>
        <translation>
            <numerusform>Ignoré&#xa0;: %n</numerusform>
            <numerusform>Ignorés&#xa0;: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Changed: %n</source>
        <translation>
            <numerusform>Modifié&#xa0;: %n</numerusform>
            <numerusform>Modifiés&#xa0;: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>the folder holds nothing that can be imported</source>
        <translation>le dossier ne contient rien qui puisse être importé</translation>
    </message>
    <message>
        <source>the folder cannot be read</source>
        <translation>impossible de lire le dossier</translation>
    </message>
    <message>
        <source>the file holds no matches</source>
        <translation>le fichier ne contient aucun fragment</translation>
    </message>
    <message>
        <source>this kind of file cannot be imported</source>
        <translation>ce type de fichier ne peut pas être importé</translation>
    </message>
</context>
<context>
    <name>InputMonitoringHelp</name>
    <message>
        <source>Tessarin can judge keys on this session.</source>
        <translation>Tessarin peut analyser les touches dans cette session.</translation>
    </message>
    <message>
        <source>Tessarin cannot judge keys on this session.</source>
        <translation>Tessarin ne peut pas analyser les touches dans cette session.</translation>
    </message>
    <message>
        <source>Nothing is missing.</source>
        <translation>Il ne manque rien.</translation>
    </message>
    <message>
        <source>This is a Wayland session, in which a program sees only the keys typed into its own windows. Choose an X11 session (often called “Xorg”) when you log in, and shortcodes expand everywhere.</source>
        <translation>Ceci est une session Wayland, dans laquelle un programme ne voit que les touches saisies dans ses propres fenêtres. Choisissez une session X11 (souvent appelée «&#xa0;Xorg&#xa0;») en ouvrant votre session, et les abréviations seront remplacées partout.</translation>
    </message>
    <message>
        <source>No X server answers. Start Tessarin from an X11 desktop session.</source>
        <translation>Aucun serveur X ne répond. Démarrez Tessarin depuis une session de bureau X11.</translation>
    </message>
    <message>
        <source>The X server lacks one of the extensions XInput 2.2, XTest and XKB. Every current X server has them; remote and nested ones may have to be updated or started with them switched on.</source>
        <translation>Il manque au serveur X l’une des extensions XInput 2.2, XTest et XKB. Tous les serveurs X actuels en disposent&#xa0;; ceux qui sont distants ou imbriqués doivent parfois être mis à jour ou démarrés en les activant.</translation>
    </message>
    <message>
        <source>Until then no shortcode expands and no popup appears. The tray menu, the settings, your snippets, import and export, and the command line work.</source>
        <translation>D’ici là, aucune abréviation n’est remplacée et aucune liste n’apparaît. Le menu de la zone de notification, les paramètres, vos fragments, l’importation et l’exportation ainsi que la ligne de commande fonctionnent.</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Check for Updates...</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Autorisations</translation>
    </message>
    <message>
        <source>Quit Tessarin</source>
        <translation>Quitter Tessarin</translation>
    </message>
    <message>
        <source>Disable Tessarin</source>
        <translation>Désactiver Tessarin</translation>
    </message>
    <message>
        <source>Enable Tessarin</source>
        <translation>Activer Tessarin</translation>
    </message>
    <message>
        <source>  Input Monitoring: ✓</source>
        <translation>  Surveillance de la saisie&#xa0;: ✓</translation>
    </message>
    <message>
        <source>  Input Monitoring: ✗</source>
        <translation>  Surveillance de la saisie&#xa0;: ✗</translation>
    </message>
    <message>
        <source>  Accessibility: ✓</source>
        <translation>  Accessibilité&#xa0;: ✓</translation>
    </message>
    <message>
        <source>  Accessibility: ✗ (optional)</source>
        <translation>  Accessibilité&#xa0;: ✗ (facultatif)</translation>
    </message>
</context>
<context>
    <name>Popup</name>
    <message>
        <source>navigate</source>
        <translation>naviguer</translation>
    </message>
    <message>
        <source>select</source>
        <translation>choisir</translation>
    </message>
    <message>
        <source>confirm</source>
        <translation>valider</translation>
    </message>
    <message>
        <source>cancel</source>
        <translation>annuler</translation>
    </message>
    <message>
        <source>skin tone</source>
        <translation>peau</translation>
    </message>
    <message>
        <source>1 match</source>
        <translation>1 correspondance</translation>
    </message>
    <message>
        <source>No matches</source>
        <translation>Aucune correspondance</translation>
    </message>
    <message numerus="yes">
        <source>%n matches</source>
        <translation>
            <numerusform>%n correspondance</numerusform>
            <numerusform>%n correspondances</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>unknown request</source>
        <translation>requête inconnue</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activé</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>quitting</source>
        <translation>arrêt en cours</translation>
    </message>
    <message>
        <source>no settings window</source>
        <translation>pas de fenêtre de paramètres</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>paramètres</translation>
    </message>
</context>
<context>
    <name>SnippetCommands</name>
    <message>
        <source>Imported 1 snippet</source>
        <translation>1 fragment importé</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n snippets</source>
        <translation>
            <numerusform>%n fragment importé</numerusform>
            <numerusform>%n fragments importés</numerusform>
        </translation>
    </message>
    <message>
        <source>Import failed: %1</source>
        <translation>Échec de l’importation&#xa0;: %1</translation>
    </message>
    <message>
        <source>Exported 1 snippet</source>
        <translation>1 fragment exporté</translation>
    </message>
    <message numerus="yes">
        <source>Exported %n snippets</source>
        <translation>
            <numerusform>%n fragment exporté</numerusform>
            <numerusform>%n fragments exportés</numerusform>
        </translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Échec de l’exportation&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Non enregistré&#xa0;: %1</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>le texte n’est pas en UTF-8</translation>
    </message>
    <message>
        <source>a trigger has letters, digits, _ and - only</source>
        <translation>une abréviation ne contient que des lettres, des chiffres, _ et -</translation>
    </message>
    <message>
        <source>a snippet needs a text</source>
        <translation>un fragment doit avoir un texte</translation>
    </message>
    <message>
        <source>there is a snippet with the trigger %1 already</source>
        <translation>il existe déjà un fragment avec l’abréviation %1</translation>
    </message>
    <message>
        <source>Added 1 snippet</source>
        <translation>1 fragment ajouté</translation>
    </message>
    <message>
        <source>no snippet of yours has the trigger %1</source>
        <translation>aucun de vos fragments n’a l’abréviation %1</translation>
    </message>
    <message>
        <source>Removed 1 snippet</source>
        <translation>1 fragment supprimé</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n snippets</source>
        <translation>
            <numerusform>%n fragment supprimé</numerusform>
            <numerusform>%n fragments supprimés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SnippetStore</name>
    <message>
        <source>your snippets could not be read when Tessarin started: %1</source>
        <translation>vos fragments n’ont pas pu être lus au démarrage de Tessarin&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>SparkleUpdaterService</name>
    <message>
        <source>Unknown</source>
        <translation>Inconnue</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::AppListSettingsTab</name>
    <message>
        <source>Add from running apps</source>
        <translation>Ajouter parmi les applications en cours d’exécution</translation>
    </message>
    <message>
        <source>Bundle ID</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::AppListView</name>
    <message>
        <source>Remove %1</source>
        <translation>Supprimer %1</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::BarChart</name>
    <message>
        <source>%1: %2, %3: %4</source>
        <translation>%1&#xa0;: %2, %3&#xa0;: %4</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Nombre</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::BlockedAppsSettingsTab</name>
    <message>
        <source>Blocked Apps</source>
        <translation>Applications bloquées</translation>
    </message>
    <message>
        <source>Tessarin is disabled in these apps. Apps with their own emoji picker (like Slack) are blocked by default.</source>
        <translation>Tessarin est désactivé dans ces applications. Celles qui ont leur propre sélecteur d’émojis (comme Slack) sont bloquées par défaut.</translation>
    </message>
    <message>
        <source>e.g., com.tinyspeck.slackmacgap</source>
        <translation>p. ex. com.tinyspeck.slackmacgap</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::CheckingDialog</name>
    <message>
        <source>Looking for updates…</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::DoneStep</name>
    <message>
        <source>You&apos;re All Set!</source>
        <translation>Tout est prêt&#xa0;!</translation>
    </message>
    <message>
        <source>Tessarin runs in your menu bar. Look for the keyboard icon to access settings, manage snippets, and more.</source>
        <translation>Tessarin fonctionne dans la zone de notification. Son icône de clavier donne accès aux paramètres, à vos fragments et plus encore.</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::ExerciseStep</name>
    <message>
        <source>Try It Out</source>
        <translation>Faites un essai</translation>
    </message>
    <message>
        <source>Try it here</source>
        <translation>Essayez ici</translation>
    </message>
    <message>
        <source>Type the trigger character to start</source>
        <translation>Tapez d’abord le caractère déclencheur</translation>
    </message>
    <message>
        <source>Type a shortcode like &quot;smile&quot; or &quot;wave&quot;</source>
        <translation>Tapez une abréviation comme «&#xa0;smile&#xa0;» ou «&#xa0;wave&#xa0;»</translation>
    </message>
    <message>
        <source>Press Enter or type the trigger again to confirm</source>
        <translation>Validez avec Entrée ou à nouveau le déclencheur</translation>
    </message>
    <message>
        <source>Type %1smile%1 in any text field</source>
        <translation>Tapez %1smile%1 dans n’importe quel champ de texte</translation>
    </message>
    <message>
        <source>%1smile%1</source>
        <translation>%1smile%1</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::GeneralSettingsTab</name>
    <message>
        <source>Launch at login</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
    <message>
        <source>Show menu bar icon</source>
        <translation>Afficher l’icône dans la zone de notification</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Démarrage</translation>
    </message>
    <message>
        <source>Trigger Character</source>
        <translation>Caractère déclencheur</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Caractère</translation>
    </message>
    <message>
        <source>Character %1</source>
        <translation>Caractère %1</translation>
    </message>
    <message>
        <source>Version %1 (%2)</source>
        <translation>Version %1 (%2)</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>Type %1shortcode%1 to trigger autocomplete</source>
        <translation>Tapez %1abréviation%1 pour afficher les propositions</translation>
    </message>
    <message>
        <source>System-wide %1shortcode%1 autocomplete for macOS</source>
        <translation>Complétion des %1abréviations%1 dans tout le système pour macOS</translation>
    </message>
    <message>
        <source>Leave Return and Tab alone where a shortcode is unlikely</source>
        <translation>Ne pas intercepter Entrée et Tab là où une abréviation est improbable</translation>
    </message>
    <message>
        <source>Only at the start of a word</source>
        <translation>Seulement en début de mot</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::MessageDialog</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::MostUsedList</name>
    <message>
        <source>%1. %2, %3</source>
        <translation>%1. %2, %3</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::OnboardingView</name>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Commencer</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::OnboardingWindow</name>
    <message>
        <source>Welcome to Tessarin</source>
        <translation>Bienvenue dans Tessarin</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PasteFallbackAppsSettingsTab</name>
    <message>
        <source>Paste Mode Apps</source>
        <translation>Applications en mode collage</translation>
    </message>
    <message>
        <source>These apps use clipboard paste instead of direct text insertion. Terminal emulators, web browsers, and other apps where direct insertion doesn&apos;t work should be listed here.</source>
        <translation>Dans ces applications, le texte est collé depuis le presse-papiers au lieu d’être inséré directement. Ajoutez ici les émulateurs de terminal, les navigateurs web et les autres applications où l’insertion directe ne fonctionne pas.</translation>
    </message>
    <message>
        <source>e.g., com.example.terminal</source>
        <translation>p. ex. com.example.terminal</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PermissionRow</name>
    <message>
        <source>Grant</source>
        <translation>Accorder</translation>
    </message>
    <message>
        <source>%1: granted</source>
        <translation>%1&#xa0;: accordée</translation>
    </message>
    <message>
        <source>%1: not granted</source>
        <translation>%1&#xa0;: non accordée</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PermissionsSettingsTab</name>
    <message>
        <source>Input Monitoring</source>
        <translation>Surveillance de la saisie</translation>
    </message>
    <message>
        <source>Required — captures keystrokes to detect :shortcodes:</source>
        <translation>Requise — analyse les touches pour reconnaître les :abréviations:</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accessibilité</translation>
    </message>
    <message>
        <source>Optional — enables cursor positioning and direct text insertion</source>
        <translation>Facultative — pour la liste près du curseur et l’insertion directe</translation>
    </message>
    <message>
        <source>Without Accessibility, Tessarin uses clipboard paste as a fallback. The popup will appear near the mouse cursor instead of the text caret.</source>
        <translation>Sans l’accessibilité, Tessarin colle le texte depuis le presse-papiers. La liste apparaît alors près du pointeur de la souris et non du curseur de texte.</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PermissionsStep</name>
    <message>
        <source>Grant Permissions</source>
        <translation>Accorder les autorisations</translation>
    </message>
    <message>
        <source>Tessarin needs two permissions to work:</source>
        <translation>Tessarin a besoin de deux autorisations&#xa0;:</translation>
    </message>
    <message>
        <source>Input Monitoring</source>
        <translation>Surveillance de la saisie</translation>
    </message>
    <message>
        <source>Detects when you type shortcodes</source>
        <translation>Détecte la saisie des abréviations</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accessibilité</translation>
    </message>
    <message>
        <source>Positions the popup and inserts text</source>
        <translation>Place la liste et insère le texte</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PopupAccessible</name>
    <message>
        <source>%1, %2 of %3</source>
        <translation>%1, %2 sur %3</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PopupItemAccessible</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>no skin tone</source>
        <translation>sans couleur de peau</translation>
    </message>
    <message>
        <source>light skin tone</source>
        <translation>peau claire</translation>
    </message>
    <message>
        <source>medium-light skin tone</source>
        <translation>peau moyennement claire</translation>
    </message>
    <message>
        <source>medium skin tone</source>
        <translation>peau légèrement mate</translation>
    </message>
    <message>
        <source>medium-dark skin tone</source>
        <translation>peau mate</translation>
    </message>
    <message>
        <source>dark skin tone</source>
        <translation>peau foncée</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PopupListAccessible</name>
    <message>
        <source>Emoji and snippets</source>
        <translation>Émojis et fragments</translation>
    </message>
    <message>
        <source>Skin tones</source>
        <translation>Couleurs de peau</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::ReleaseNotesView</name>
    <message>
        <source>Release notes</source>
        <translation>Notes de version</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::RunningAppsGrid</name>
    <message>
        <source>Add %1</source>
        <translation>Ajouter %1</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SettingsView</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Snippets</source>
        <translation>Fragments</translation>
    </message>
    <message>
        <source>Stats</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>Blocked Apps</source>
        <translation>Applis bloquées</translation>
    </message>
    <message>
        <source>Paste Mode Apps</source>
        <translation>Mode collage</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Autorisations</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SettingsWindow</name>
    <message>
        <source>Tessarin Settings</source>
        <translation>Paramètres de Tessarin</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetEditorView</name>
    <message>
        <source>e.g., ¯\_(ツ)_/¯ or multi-line text</source>
        <translation>p. ex. ¯\_(ツ)_/¯ ou un texte de plusieurs lignes</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Edit Snippet</source>
        <translation>Modifier le fragment</translation>
    </message>
    <message>
        <source>New Snippet</source>
        <translation>Nouveau fragment</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>e.g., Shrug</source>
        <translation>p. ex. Haussement d’épaules</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Abréviation</translation>
    </message>
    <message>
        <source>e.g., shrug</source>
        <translation>p. ex. shrug</translation>
    </message>
    <message>
        <source>Keywords (comma-separated)</source>
        <translation>Mots-clés (séparés par des virgules)</translation>
    </message>
    <message>
        <source>e.g., whatever, idk</source>
        <translation>p. ex. bof, aucune idée</translation>
    </message>
    <message>
        <source>Replacement</source>
        <translation>Remplacement</translation>
    </message>
    <message>
        <source>Available variables: {{date}}, {{time}}, {{datetime}}, {{clipboard}}</source>
        <translation>Variables disponibles&#xa0;: {{date}}, {{time}}, {{datetime}}, {{clipboard}}</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetFileDialogs</name>
    <message>
        <source>Import Snippets</source>
        <translation>Importer des fragments</translation>
    </message>
    <message>
        <source>Export Snippets</source>
        <translation>Exporter des fragments</translation>
    </message>
    <message>
        <source>Snippets</source>
        <translation>Fragments</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetListModel</name>
    <message>
        <source>%1, %2, %3</source>
        <extracomment>A list row, as it is read out: trigger, name, text inserted</extracomment>
        <translation>%1, %2, %3</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetListView</name>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Custom Snippets</source>
        <translation>Fragments personnalisés</translation>
    </message>
    <message>
        <source>Edit %1</source>
        <translation>Modifier %1</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Supprimer %1</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetsSettingsTab</name>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Custom Snippets</source>
        <translation>Fragments personnalisés</translation>
    </message>
    <message>
        <source>No custom snippets yet</source>
        <translation>Aucun fragment personnalisé</translation>
    </message>
    <message>
        <source>Built-in emojis: %1</source>
        <translation>Nombre d’émojis intégrés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Import failed: %1</source>
        <translation>Échec de l’importation&#xa0;: %1</translation>
    </message>
    <message>
        <source>Imported 1 snippet</source>
        <translation>1 fragment importé</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n snippets</source>
        <translation>
            <numerusform>%n fragment importé</numerusform>
            <numerusform>%n fragments importés</numerusform>
        </translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Échec de l’exportation&#xa0;: %1</translation>
    </message>
    <message>
        <source>Also of espanso or AutoKey, or a table (CSV). Files and folders can be dropped here.</source>
        <translation>Également d’espanso ou d’AutoKey, ou un tableau (CSV). Vous pouvez déposer ici des fichiers et des dossiers.</translation>
    </message>
    <message>
        <source>Import Snippets</source>
        <translation>Importer des fragments</translation>
    </message>
    <message>
        <source>Left out: %1. Changed: %2.</source>
        <translation>Ignorés&#xa0;: %1. Modifiés&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::StatCard</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::StatsSettingsTab</name>
    <message>
        <source>Total Expansions</source>
        <translation>Remplacements au total</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Usage Statistics</source>
        <translation>Statistiques d’utilisation</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>Les 7 derniers jours</translation>
    </message>
    <message>
        <source>No usage data yet</source>
        <translation>Aucune donnée d’utilisation</translation>
    </message>
    <message>
        <source>Most Used</source>
        <translation>Les plus utilisés</translation>
    </message>
    <message>
        <source>No snippets used yet</source>
        <translation>Aucun fragment utilisé</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::StepIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Étape %1 sur %2</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::TrustPrompt</name>
    <message>
        <source>Allow Tessarin to expand shortcodes?</source>
        <translation>Autoriser Tessarin à remplacer les abréviations&#xa0;?</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Autoriser</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>After you type the trigger character, Tessarin judges the keys that follow, shows matches beside the caret and replaces the shortcode in the application you are typing in. While idle it sees no key but the trigger. Of what you type, nothing is kept but how often each entry was used.

Saying yes also switches the session&apos;s accessibility on, for later sessions too. Qt applications and browsers that are open now notice it when they are started again; until then, text is pasted there.</source>
        <translation>Après la saisie du caractère déclencheur, Tessarin analyse les touches qui suivent, affiche les correspondances près du curseur et remplace l’abréviation dans l’application où vous écrivez. Au repos, il ne voit aucune autre touche que le déclencheur. De ce que vous tapez, seul est conservé le nombre d’utilisations de chaque entrée.

Si vous acceptez, les fonctions d’accessibilité de la session sont également activées, y compris pour les sessions suivantes. Les applications Qt et les navigateurs déjà ouverts n’en tiendront compte qu’après avoir été redémarrés&#xa0;; d’ici là, le texte y est collé.</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::UpdateDialog</name>
    <message>
        <source>Tessarin Update</source>
        <translation>Mise à jour de Tessarin</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::UpdateFoundDialog</name>
    <message>
        <source>A new version of Tessarin is available</source>
        <translation>Une nouvelle version de Tessarin est disponible</translation>
    </message>
    <message>
        <source>Tessarin %1 can be downloaded now. This is version %2.</source>
        <translation>Tessarin %1 peut être téléchargé dès maintenant. La version actuelle est %2.</translation>
    </message>
    <message>
        <source>What has changed:</source>
        <translation>Nouveautés&#xa0;:</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Ignorer cette version</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Me le rappeler plus tard</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Télécharger…</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::UpdateWindows</name>
    <message>
        <source>The update server cannot be reached. Is this computer connected to the network?</source>
        <translation>Impossible de joindre le serveur de mises à jour. Cet ordinateur est-il connecté au réseau&#xa0;?</translation>
    </message>
    <message>
        <source>The update server took too long to answer.</source>
        <translation>Le serveur de mises à jour a mis trop de temps à répondre.</translation>
    </message>
    <message>
        <source>The update server cannot be trusted, as its certificate is not in order.</source>
        <translation>Le serveur de mises à jour n’est pas digne de confiance&#xa0;: son certificat n’est pas valable.</translation>
    </message>
    <message>
        <source>Updates are looked for over secure connections only, and the address of the update server does not lead to one.</source>
        <translation>Les mises à jour ne sont recherchées que par des connexions sécurisées, et l’adresse du serveur de mises à jour n’en permet pas.</translation>
    </message>
    <message>
        <source>The update server leads from one address to another without end.</source>
        <translation>Le serveur de mises à jour redirige sans fin d’une adresse à une autre.</translation>
    </message>
    <message>
        <source>The update server does not have the list of updates.</source>
        <translation>Le serveur de mises à jour n’a pas la liste des mises à jour.</translation>
    </message>
    <message>
        <source>The update server sent more than a list of updates.</source>
        <translation>Le serveur de mises à jour a envoyé plus qu’une liste de mises à jour.</translation>
    </message>
    <message>
        <source>The list of updates cannot be read.</source>
        <translation>Impossible de lire la liste des mises à jour.</translation>
    </message>
    <message>
        <source>Tessarin is up to date</source>
        <translation>Tessarin est à jour</translation>
    </message>
    <message>
        <source>Version %1 is the newest one there is.</source>
        <translation>La version %1 est la plus récente.</translation>
    </message>
    <message>
        <source>Tessarin could not look for updates</source>
        <translation>Tessarin n’a pas pu rechercher de mises à jour</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::WelcomeStep</name>
    <message>
        <source>Welcome to Tessarin</source>
        <translation>Bienvenue dans Tessarin</translation>
    </message>
    <message>
        <source>Type shortcodes anywhere to instantly insert emoji, kaomoji, and custom snippets.</source>
        <translation>Tapez une abréviation n’importe où pour insérer aussitôt des émojis, des kaomojis et vos propres fragments.</translation>
    </message>
    <message>
        <source>System-wide %1shortcode%1 autocomplete for macOS</source>
        <translation>Complétion des %1abréviations%1 dans tout le système pour macOS</translation>
    </message>
</context>
</TS>
