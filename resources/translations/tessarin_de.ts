<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>CommandLine</name>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>open the settings, starting the program if need be</source>
        <translation>öffnet die Einstellungen und startet dazu nötigenfalls das Programm</translation>
    </message>
    <message>
        <source>switch expansion off or on in the running program</source>
        <translation>schaltet das Ersetzen im laufenden Programm aus oder ein</translation>
    </message>
    <message>
        <source>end the running program</source>
        <translation>beendet das laufende Programm</translation>
    </message>
    <message>
        <source>let Tessarin judge keys and write into other applications, and switch the session&apos;s accessibility on</source>
        <translation>lässt Tessarin Tasten auswerten und in andere Programme schreiben und schaltet die Bedienungshilfen der Sitzung ein</translation>
    </message>
    <message>
        <source>take that back</source>
        <translation>nimmt das zurück</translation>
    </message>
    <message>
        <source>add the snippets of a file to your own</source>
        <translation>fügt die Bausteine einer Datei den eigenen hinzu</translation>
    </message>
    <message>
        <source>write your own snippets into a file</source>
        <translation>schreibt die eigenen Bausteine in eine Datei</translation>
    </message>
    <message>
        <source>QUERY</source>
        <translation>SUCHE</translation>
    </message>
    <message>
        <source>list what the popup would offer, best first</source>
        <translation>listet auf, was das Popup anbieten würde, das Beste zuerst</translation>
    </message>
    <message>
        <source>show this text</source>
        <translation>zeigt diesen Text</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>zeigt die Version</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>ZAHL</translation>
    </message>
    <message>
        <source>with --search: list at most so many (8)</source>
        <translation>mit --search: listet höchstens so viele auf (8)</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>unbekannte Option %1</translation>
    </message>
    <message>
        <source>unexpected argument %1</source>
        <translation>unerwartetes Argument %1</translation>
    </message>
    <message>
        <source>%1 cannot be combined</source>
        <translation>%1 lässt sich nicht kombinieren</translation>
    </message>
    <message>
        <source>%1 needs a file</source>
        <translation>%1 braucht eine Datei</translation>
    </message>
    <message>
        <source>%1 needs a number from 1 on</source>
        <translation>%1 braucht eine Zahl ab 1</translation>
    </message>
    <message>
        <source>%1 takes no argument</source>
        <translation>%1 nimmt kein Argument</translation>
    </message>
    <message>
        <source>%1 needs an argument: %2</source>
        <translation>%1 braucht ein Argument: %2</translation>
    </message>
    <message>
        <source>usage: tessarin [OPTION]</source>
        <translation>Aufruf: tessarin [OPTION]</translation>
    </message>
    <message>
        <source>Expands shortcodes such as :smile in any application. Started again without an option, it opens the
settings of the program that runs.</source>
        <translation>Ersetzt Kürzel wie :smile in jedem Programm. Noch einmal ohne Option gestartet, öffnet es die
Einstellungen des laufenden Programms.</translation>
    </message>
    <message>
        <source>TRIGGER</source>
        <translation>KÜRZEL</translation>
    </message>
    <message>
        <source>list your own snippets</source>
        <translation>listet die eigenen Bausteine auf</translation>
    </message>
    <message>
        <source>TRIGGER TEXT</source>
        <translation>KÜRZEL TEXT</translation>
    </message>
    <message>
        <source>add a snippet to your own</source>
        <translation>fügt den eigenen Bausteinen einen hinzu</translation>
    </message>
    <message>
        <source>remove your snippets with that trigger</source>
        <translation>entfernt die eigenen Bausteine mit diesem Kürzel</translation>
    </message>
    <message>
        <source>with --list or --search: write a JSON array</source>
        <translation>mit --list oder --search: gibt ein JSON-Array aus</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>with --add: what the popup calls it (the trigger)</source>
        <translation>mit --add: wie der Baustein im Popup heißt (wie das Kürzel)</translation>
    </message>
    <message>
        <source>WORDS</source>
        <translation>WÖRTER</translation>
    </message>
    <message>
        <source>with --add: further words to find it by, between commas</source>
        <translation>mit --add: weitere Wörter, die ihn finden, durch Kommas getrennt</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 braucht %2</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>the running instance does not answer</source>
        <translation>das laufende Programm antwortet nicht</translation>
    </message>
    <message>
        <source>Tessarin may judge keys and write into other applications.</source>
        <translation>Tessarin darf Tasten auswerten und in andere Programme schreiben.</translation>
    </message>
    <message>
        <source>The session&apos;s accessibility is switched on, for later sessions too. Qt applications and browsers that are open now notice it when they are started again; until then, text is pasted there.</source>
        <translation>Die Bedienungshilfen der Sitzung sind eingeschaltet, auch für spätere Sitzungen. Qt-Programme und Browser, die schon offen sind, bemerken es, wenn sie neu gestartet werden; bis dahin wird dort über die Zwischenablage eingefügt.</translation>
    </message>
    <message>
        <source>The session&apos;s accessibility could not be switched on; text will be pasted.</source>
        <translation>Die Bedienungshilfen der Sitzung ließen sich nicht einschalten; Text wird über die Zwischenablage eingefügt.</translation>
    </message>
    <message>
        <source>Tessarin no longer judges keys or writes into other applications.</source>
        <translation>Tessarin wertet keine Tasten mehr aus und schreibt nicht mehr in andere Programme.</translation>
    </message>
    <message>
        <source>no instance is running</source>
        <translation>Tessarin läuft nicht</translation>
    </message>
    <message>
        <source>no display to open a window on; try from a desktop session</source>
        <translation>keine Anzeige, auf der sich ein Fenster öffnen ließe; versuchen Sie es aus einer Desktop-Sitzung</translation>
    </message>
</context>
<context>
    <name>Importers</name>
    <message>
        <source>its text would be filled in here</source>
        <translation>sein Text würde hier ausgefüllt</translation>
    </message>
    <message>
        <source>it places the caret</source>
        <translation>es versetzt die Einfügemarke</translation>
    </message>
    <message>
        <source>it runs a script</source>
        <translation>es führt ein Skript aus</translation>
    </message>
    <message>
        <source>it inserts a file</source>
        <translation>es fügt eine Datei ein</translation>
    </message>
    <message>
        <source>it presses the key %1</source>
        <translation>es drückt die Taste %1</translation>
    </message>
    <message>
        <source>it writes a date in another form</source>
        <translation>es schreibt ein Datum in anderer Form</translation>
    </message>
    <message>
        <source>it is a script</source>
        <translation>es ist ein Skript</translation>
    </message>
    <message>
        <source>it has a hotkey only</source>
        <translation>es hat nur ein Tastenkürzel</translation>
    </message>
    <message>
        <source>it has no abbreviation</source>
        <translation>es hat keine Abkürzung</translation>
    </message>
    <message>
        <source>it works in every window here</source>
        <translation>hier gilt es in jedem Fenster</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>it has more than four columns; a text with separators needs quotes</source>
        <translation>die Zeile hat mehr als vier Spalten; ein Text mit Trennzeichen braucht Anführungszeichen</translation>
    </message>
    <message>
        <source>it has a regular expression</source>
        <translation>es hat einen regulären Ausdruck</translation>
    </message>
    <message>
        <source>it asks by a form</source>
        <translation>es fragt mit einem Formular</translation>
    </message>
    <message>
        <source>it inserts an image</source>
        <translation>es fügt ein Bild ein</translation>
    </message>
    <message>
        <source>its text is formatted</source>
        <translation>sein Text ist formatiert</translation>
    </message>
    <message>
        <source>it is not a match</source>
        <translation>es ist kein Baustein</translation>
    </message>
    <message>
        <source>it has no trigger</source>
        <translation>es hat kein Kürzel</translation>
    </message>
    <message>
        <source>it uses %1, which is not among its variables</source>
        <translation>es verwendet %1, das nicht unter seinen Variablen ist</translation>
    </message>
    <message>
        <source>it has a variable of the kind %1</source>
        <translation>es hat eine Variable der Art %1</translation>
    </message>
    <message>
        <source>its text does not follow the case of what is typed</source>
        <translation>sein Text folgt hier nicht der Groß- und Kleinschreibung des Getippten</translation>
    </message>
    <message>
        <source>its trigger is too long to type</source>
        <translation>sein Kürzel ist zu lang zum Tippen</translation>
    </message>
    <message>
        <source>nothing of its trigger can be part of a shortcode</source>
        <translation>nichts von seinem Kürzel kann nach dem Auslösezeichen getippt werden</translation>
    </message>
    <message>
        <source>it has no text</source>
        <translation>es hat keinen Text</translation>
    </message>
    <message>
        <source>its trigger is now %1</source>
        <translation>sein Kürzel ist jetzt %1</translation>
    </message>
    <message numerus="yes">
        <source>Left out: %n</source>
        <translation>
            <numerusform>Ausgelassen: %n</numerusform>
            <numerusform>Ausgelassen: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Changed: %n</source>
        <translation>
            <numerusform>Geändert: %n</numerusform>
            <numerusform>Geändert: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>the folder holds nothing that can be imported</source>
        <translation>der Ordner enthält nichts, was importiert werden kann</translation>
    </message>
    <message>
        <source>the folder cannot be read</source>
        <translation>der Ordner lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>the file holds no matches</source>
        <translation>die Datei enthält keine Bausteine</translation>
    </message>
    <message>
        <source>this kind of file cannot be imported</source>
        <translation>diese Art von Datei kann nicht importiert werden</translation>
    </message>
</context>
<context>
    <name>InputMonitoringHelp</name>
    <message>
        <source>Tessarin can judge keys on this session.</source>
        <translation>Tessarin kann in dieser Sitzung Tasten auswerten.</translation>
    </message>
    <message>
        <source>Tessarin cannot judge keys on this session.</source>
        <translation>Tessarin kann in dieser Sitzung keine Tasten auswerten.</translation>
    </message>
    <message>
        <source>Nothing is missing.</source>
        <translation>Es fehlt nichts.</translation>
    </message>
    <message>
        <source>This is a Wayland session, in which a program sees only the keys typed into its own windows. Choose an X11 session (often called “Xorg”) when you log in, and shortcodes expand everywhere.</source>
        <translation>Dies ist eine Wayland-Sitzung, in der ein Programm nur die Tasten sieht, die in seinen eigenen Fenstern getippt werden. Wählen Sie bei der Anmeldung eine X11-Sitzung (oft „Xorg“ genannt), dann werden Kürzel überall ersetzt.</translation>
    </message>
    <message>
        <source>No X server answers. Start Tessarin from an X11 desktop session.</source>
        <translation>Kein X-Server antwortet. Starten Sie Tessarin aus einer X11-Sitzung.</translation>
    </message>
    <message>
        <source>The X server lacks one of the extensions XInput 2.2, XTest and XKB. Every current X server has them; remote and nested ones may have to be updated or started with them switched on.</source>
        <translation>Dem X-Server fehlt eine der Erweiterungen XInput 2.2, XTest und XKB. Jeder aktuelle X-Server hat sie; entfernte und eingebettete müssen vielleicht aktualisiert oder mit ihnen gestartet werden.</translation>
    </message>
    <message>
        <source>Until then no shortcode expands and no popup appears. The tray menu, the settings, your snippets, import and export, and the command line work.</source>
        <translation>Bis dahin wird kein Kürzel ersetzt und kein Popup gezeigt. Das Menü, die Einstellungen, Ihre Bausteine, Import und Export und die Befehlszeile funktionieren.</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Check for Updates...</source>
        <translation>Nach Aktualisierungen suchen …</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Berechtigungen</translation>
    </message>
    <message>
        <source>Quit Tessarin</source>
        <translation>Tessarin beenden</translation>
    </message>
    <message>
        <source>Disable Tessarin</source>
        <translation>Tessarin ausschalten</translation>
    </message>
    <message>
        <source>Enable Tessarin</source>
        <translation>Tessarin einschalten</translation>
    </message>
    <message>
        <source>  Input Monitoring: ✓</source>
        <translation>  Eingabeüberwachung: ✓</translation>
    </message>
    <message>
        <source>  Input Monitoring: ✗</source>
        <translation>  Eingabeüberwachung: ✗</translation>
    </message>
    <message>
        <source>  Accessibility: ✓</source>
        <translation>  Bedienungshilfen: ✓</translation>
    </message>
    <message>
        <source>  Accessibility: ✗ (optional)</source>
        <translation>  Bedienungshilfen: ✗ (optional)</translation>
    </message>
</context>
<context>
    <name>Popup</name>
    <message>
        <source>navigate</source>
        <translation>bewegen</translation>
    </message>
    <message>
        <source>select</source>
        <translation>wählen</translation>
    </message>
    <message>
        <source>confirm</source>
        <translation>einsetzen</translation>
    </message>
    <message>
        <source>cancel</source>
        <translation>abbrechen</translation>
    </message>
    <message>
        <source>skin tone</source>
        <translation>Hautton</translation>
    </message>
    <message>
        <source>1 match</source>
        <translation>1 Treffer</translation>
    </message>
    <message>
        <source>No matches</source>
        <translation>Keine Treffer</translation>
    </message>
    <message numerus="yes">
        <source>%n matches</source>
        <translation>
            <numerusform>%n Treffer</numerusform>
            <numerusform>%n Treffer</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>unknown request</source>
        <translation>unbekannte Anfrage</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>quitting</source>
        <translation>wird beendet</translation>
    </message>
    <message>
        <source>no settings window</source>
        <translation>kein Einstellungsfenster</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>SnippetCommands</name>
    <message>
        <source>Imported 1 snippet</source>
        <translation>1 Baustein importiert</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n snippets</source>
        <translation>
            <numerusform>%n Baustein importiert</numerusform>
            <numerusform>%n Bausteine importiert</numerusform>
        </translation>
    </message>
    <message>
        <source>Import failed: %1</source>
        <translation>Import fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Exported 1 snippet</source>
        <translation>1 Baustein exportiert</translation>
    </message>
    <message numerus="yes">
        <source>Exported %n snippets</source>
        <translation>
            <numerusform>%n Baustein exportiert</numerusform>
            <numerusform>%n Bausteine exportiert</numerusform>
        </translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Export fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>der Text ist nicht in UTF-8</translation>
    </message>
    <message>
        <source>a trigger has letters, digits, _ and - only</source>
        <translation>ein Kürzel besteht nur aus Buchstaben, Ziffern, _ und -</translation>
    </message>
    <message>
        <source>a snippet needs a text</source>
        <translation>ein Baustein braucht einen Text</translation>
    </message>
    <message>
        <source>there is a snippet with the trigger %1 already</source>
        <translation>es gibt schon einen Baustein mit dem Kürzel %1</translation>
    </message>
    <message>
        <source>Added 1 snippet</source>
        <translation>1 Baustein hinzugefügt</translation>
    </message>
    <message>
        <source>no snippet of yours has the trigger %1</source>
        <translation>keiner der eigenen Bausteine hat das Kürzel %1</translation>
    </message>
    <message>
        <source>Removed 1 snippet</source>
        <translation>1 Baustein entfernt</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n snippets</source>
        <translation>
            <numerusform>%n Baustein entfernt</numerusform>
            <numerusform>%n Bausteine entfernt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SnippetStore</name>
    <message>
        <source>your snippets could not be read when Tessarin started: %1</source>
        <translation>Ihre Bausteine waren beim Start von Tessarin nicht lesbar: %1</translation>
    </message>
</context>
<context>
    <name>SparkleUpdaterService</name>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::AppListSettingsTab</name>
    <message>
        <source>Add from running apps</source>
        <translation>Aus laufenden Programmen hinzufügen</translation>
    </message>
    <message>
        <source>Bundle ID</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::AppListView</name>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::BarChart</name>
    <message>
        <source>%1: %2, %3: %4</source>
        <translation>%1: %2, %3: %4</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Anzahl</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::BlockedAppsSettingsTab</name>
    <message>
        <source>Blocked Apps</source>
        <translation>Gesperrte Apps</translation>
    </message>
    <message>
        <source>Tessarin is disabled in these apps. Apps with their own emoji picker (like Slack) are blocked by default.</source>
        <translation>In diesen Apps ist Tessarin ausgeschaltet. Apps mit eigener Emoji-Auswahl (wie Slack) sind von vornherein gesperrt.</translation>
    </message>
    <message>
        <source>e.g., com.tinyspeck.slackmacgap</source>
        <translation>z. B. com.tinyspeck.slackmacgap</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::CheckingDialog</name>
    <message>
        <source>Looking for updates…</source>
        <translation>Suche nach Aktualisierungen …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::DoneStep</name>
    <message>
        <source>You&apos;re All Set!</source>
        <translation>Alles bereit!</translation>
    </message>
    <message>
        <source>Tessarin runs in your menu bar. Look for the keyboard icon to access settings, manage snippets, and more.</source>
        <translation>Tessarin läuft in Ihrer Leiste. Über das Symbol dort erreichen Sie die Einstellungen, Ihre Bausteine und mehr.</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::ExerciseStep</name>
    <message>
        <source>Try It Out</source>
        <translation>Ausprobieren</translation>
    </message>
    <message>
        <source>Try it here</source>
        <translation>Hier ausprobieren</translation>
    </message>
    <message>
        <source>Type the trigger character to start</source>
        <translation>Mit dem Auslösezeichen beginnen</translation>
    </message>
    <message>
        <source>Type a shortcode like &quot;smile&quot; or &quot;wave&quot;</source>
        <translation>Ein Kürzel wie „smile“ oder „wave“ tippen</translation>
    </message>
    <message>
        <source>Press Enter or type the trigger again to confirm</source>
        <translation>Mit der Eingabetaste oder dem Auslösezeichen bestätigen</translation>
    </message>
    <message>
        <source>Type %1smile%1 in any text field</source>
        <translation>Tippen Sie %1smile%1 in irgendein Textfeld</translation>
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
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Show menu bar icon</source>
        <translation>Symbol in der Leiste zeigen</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Trigger Character</source>
        <translation>Auslösezeichen</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aktualisierungen</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Character %1</source>
        <translation>Zeichen %1</translation>
    </message>
    <message>
        <source>Version %1 (%2)</source>
        <translation>Version %1 (%2)</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>Nach Aktualisierungen suchen …</translation>
    </message>
    <message>
        <source>Type %1shortcode%1 to trigger autocomplete</source>
        <translation>%1kürzel%1 tippen, um Vorschläge zu bekommen</translation>
    </message>
    <message>
        <source>System-wide %1shortcode%1 autocomplete for macOS</source>
        <translation>Systemweite %1kürzel%1-Vervollständigung für macOS</translation>
    </message>
    <message>
        <source>Leave Return and Tab alone where a shortcode is unlikely</source>
        <translation>Eingabe- und Tabulatortaste durchlassen, wo ein Kürzel unwahrscheinlich ist</translation>
    </message>
    <message>
        <source>Only at the start of a word</source>
        <translation>Nur am Wortanfang</translation>
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
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Loslegen</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::OnboardingWindow</name>
    <message>
        <source>Welcome to Tessarin</source>
        <translation>Willkommen bei Tessarin</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PasteFallbackAppsSettingsTab</name>
    <message>
        <source>Paste Mode Apps</source>
        <translation>Einfüge-Apps</translation>
    </message>
    <message>
        <source>These apps use clipboard paste instead of direct text insertion. Terminal emulators, web browsers, and other apps where direct insertion doesn&apos;t work should be listed here.</source>
        <translation>In diesen Apps wird über die Zwischenablage eingefügt statt unmittelbar. Terminals, Webbrowser und andere Apps, in denen unmittelbares Einfügen nicht geht, gehören auf diese Liste.</translation>
    </message>
    <message>
        <source>e.g., com.example.terminal</source>
        <translation>z. B. com.example.terminal</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PermissionRow</name>
    <message>
        <source>Grant</source>
        <translation>Erteilen</translation>
    </message>
    <message>
        <source>%1: granted</source>
        <translation>%1: erteilt</translation>
    </message>
    <message>
        <source>%1: not granted</source>
        <translation>%1: nicht erteilt</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PermissionsSettingsTab</name>
    <message>
        <source>Input Monitoring</source>
        <translation>Eingabeüberwachung</translation>
    </message>
    <message>
        <source>Required — captures keystrokes to detect :shortcodes:</source>
        <translation>Nötig — wertet Tastendrücke aus, um :kürzel: zu erkennen</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Bedienungshilfen</translation>
    </message>
    <message>
        <source>Optional — enables cursor positioning and direct text insertion</source>
        <translation>Freiwillig — für das Popup an der Schreibmarke und unmittelbares Einfügen</translation>
    </message>
    <message>
        <source>Without Accessibility, Tessarin uses clipboard paste as a fallback. The popup will appear near the mouse cursor instead of the text caret.</source>
        <translation>Ohne Bedienungshilfen fügt Tessarin über die Zwischenablage ein. Das Popup erscheint dann beim Mauszeiger statt bei der Schreibmarke.</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PermissionsStep</name>
    <message>
        <source>Grant Permissions</source>
        <translation>Berechtigungen erteilen</translation>
    </message>
    <message>
        <source>Tessarin needs two permissions to work:</source>
        <translation>Tessarin braucht zwei Berechtigungen:</translation>
    </message>
    <message>
        <source>Input Monitoring</source>
        <translation>Eingabeüberwachung</translation>
    </message>
    <message>
        <source>Detects when you type shortcodes</source>
        <translation>Bemerkt, wenn Sie Kürzel tippen</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Bedienungshilfen</translation>
    </message>
    <message>
        <source>Positions the popup and inserts text</source>
        <translation>Platziert das Popup und fügt Text ein</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PopupAccessible</name>
    <message>
        <source>%1, %2 of %3</source>
        <translation>%1, %2 von %3</translation>
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
        <translation>ohne Hautton</translation>
    </message>
    <message>
        <source>light skin tone</source>
        <translation>heller Hautton</translation>
    </message>
    <message>
        <source>medium-light skin tone</source>
        <translation>mittelheller Hautton</translation>
    </message>
    <message>
        <source>medium skin tone</source>
        <translation>mittlerer Hautton</translation>
    </message>
    <message>
        <source>medium-dark skin tone</source>
        <translation>mitteldunkler Hautton</translation>
    </message>
    <message>
        <source>dark skin tone</source>
        <translation>dunkler Hautton</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PopupListAccessible</name>
    <message>
        <source>Emoji and snippets</source>
        <translation>Emoji und Bausteine</translation>
    </message>
    <message>
        <source>Skin tones</source>
        <translation>Hauttöne</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::ReleaseNotesView</name>
    <message>
        <source>Release notes</source>
        <translation>Versionshinweise</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::RunningAppsGrid</name>
    <message>
        <source>Add %1</source>
        <translation>%1 hinzufügen</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SettingsView</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Snippets</source>
        <translation>Bausteine</translation>
    </message>
    <message>
        <source>Stats</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Blocked Apps</source>
        <translation>Gesperrte Apps</translation>
    </message>
    <message>
        <source>Paste Mode Apps</source>
        <translation>Einfüge-Apps</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Berechtigungen</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SettingsWindow</name>
    <message>
        <source>Tessarin Settings</source>
        <translation>Tessarin-Einstellungen</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetEditorView</name>
    <message>
        <source>e.g., ¯\_(ツ)_/¯ or multi-line text</source>
        <translation>z. B. ¯\_(ツ)_/¯ oder mehrzeiliger Text</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Edit Snippet</source>
        <translation>Baustein bearbeiten</translation>
    </message>
    <message>
        <source>New Snippet</source>
        <translation>Neuer Baustein</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>e.g., Shrug</source>
        <translation>z. B. Schulterzucken</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Kürzel</translation>
    </message>
    <message>
        <source>e.g., shrug</source>
        <translation>z. B. shrug</translation>
    </message>
    <message>
        <source>Keywords (comma-separated)</source>
        <translation>Stichwörter (durch Komma getrennt)</translation>
    </message>
    <message>
        <source>e.g., whatever, idk</source>
        <translation>z. B. egal, weiß nicht</translation>
    </message>
    <message>
        <source>Replacement</source>
        <translation>Ersetzung</translation>
    </message>
    <message>
        <source>Available variables: {{date}}, {{time}}, {{datetime}}, {{clipboard}}</source>
        <translation>Verfügbare Variablen: {{date}}, {{time}}, {{datetime}}, {{clipboard}}</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetFileDialogs</name>
    <message>
        <source>Import Snippets</source>
        <translation>Bausteine importieren</translation>
    </message>
    <message>
        <source>Export Snippets</source>
        <translation>Bausteine exportieren</translation>
    </message>
    <message>
        <source>Snippets</source>
        <translation>Bausteine</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
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
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Custom Snippets</source>
        <translation>Eigene Bausteine</translation>
    </message>
    <message>
        <source>Edit %1</source>
        <translation>%1 bearbeiten</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetsSettingsTab</name>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Custom Snippets</source>
        <translation>Eigene Bausteine</translation>
    </message>
    <message>
        <source>No custom snippets yet</source>
        <translation>Noch keine eigenen Bausteine</translation>
    </message>
    <message>
        <source>Built-in emojis: %1</source>
        <translation>Eingebaute Emoji: %1</translation>
    </message>
    <message>
        <source>Import failed: %1</source>
        <translation>Import fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Imported 1 snippet</source>
        <translation>1 Baustein importiert</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n snippets</source>
        <translation>
            <numerusform>%n Baustein importiert</numerusform>
            <numerusform>%n Bausteine importiert</numerusform>
        </translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Export fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Also of espanso or AutoKey, or a table (CSV). Files and folders can be dropped here.</source>
        <translation>Auch von espanso oder AutoKey oder eine Tabelle (CSV). Dateien und Ordner lassen sich hierher ziehen.</translation>
    </message>
    <message>
        <source>Import Snippets</source>
        <translation>Bausteine importieren</translation>
    </message>
    <message>
        <source>Left out: %1. Changed: %2.</source>
        <translation>Ausgelassen: %1. Geändert: %2.</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::StatCard</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::StatsSettingsTab</name>
    <message>
        <source>Total Expansions</source>
        <translation>Ersetzungen insgesamt</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Usage Statistics</source>
        <translation>Nutzungsstatistik</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>Letzte 7 Tage</translation>
    </message>
    <message>
        <source>No usage data yet</source>
        <translation>Noch keine Nutzungsdaten</translation>
    </message>
    <message>
        <source>Most Used</source>
        <translation>Am meisten benutzt</translation>
    </message>
    <message>
        <source>No snippets used yet</source>
        <translation>Noch keine Bausteine benutzt</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::StepIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Schritt %1 von %2</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::TrustPrompt</name>
    <message>
        <source>Allow Tessarin to expand shortcodes?</source>
        <translation>Darf Tessarin Kürzel ersetzen?</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Erlauben</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>After you type the trigger character, Tessarin judges the keys that follow, shows matches beside the caret and replaces the shortcode in the application you are typing in. While idle it sees no key but the trigger. Of what you type, nothing is kept but how often each entry was used.

Saying yes also switches the session&apos;s accessibility on, for later sessions too. Qt applications and browsers that are open now notice it when they are started again; until then, text is pasted there.</source>
        <translation>Nachdem Sie das Auslösezeichen getippt haben, wertet Tessarin die folgenden Tasten aus, zeigt Treffer neben der Schreibmarke und ersetzt das Kürzel in der Anwendung, in der Sie schreiben. In Ruhe sieht es keine Taste außer dem Auslösezeichen. Von dem, was Sie tippen, wird nur behalten, wie oft jeder Eintrag benutzt wurde.

Wenn Sie zustimmen, werden auch die Bedienungshilfen der Sitzung eingeschaltet, ebenso für spätere Sitzungen. Qt-Anwendungen und Browser, die jetzt offen sind, bemerken es, wenn sie neu gestartet werden; bis dahin wird dort über die Zwischenablage eingefügt.</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::UpdateDialog</name>
    <message>
        <source>Tessarin Update</source>
        <translation>Tessarin-Aktualisierung</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::UpdateFoundDialog</name>
    <message>
        <source>A new version of Tessarin is available</source>
        <translation>Eine neue Version von Tessarin ist da</translation>
    </message>
    <message>
        <source>Tessarin %1 can be downloaded now. This is version %2.</source>
        <translation>Tessarin %1 kann jetzt heruntergeladen werden. Dies ist Version %2.</translation>
    </message>
    <message>
        <source>What has changed:</source>
        <translation>Was sich geändert hat:</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Diese Version auslassen</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Später erinnern</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Herunterladen …</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::UpdateWindows</name>
    <message>
        <source>The update server cannot be reached. Is this computer connected to the network?</source>
        <translation>Der Server für Aktualisierungen ist nicht zu erreichen. Ist dieser Rechner mit dem Netz verbunden?</translation>
    </message>
    <message>
        <source>The update server took too long to answer.</source>
        <translation>Der Server für Aktualisierungen hat zu lange nicht geantwortet.</translation>
    </message>
    <message>
        <source>The update server cannot be trusted, as its certificate is not in order.</source>
        <translation>Dem Server für Aktualisierungen ist nicht zu trauen: Sein Zertifikat ist nicht in Ordnung.</translation>
    </message>
    <message>
        <source>Updates are looked for over secure connections only, and the address of the update server does not lead to one.</source>
        <translation>Nach Aktualisierungen wird nur über sichere Verbindungen gesucht, und die Adresse des Servers führt zu keiner.</translation>
    </message>
    <message>
        <source>The update server leads from one address to another without end.</source>
        <translation>Der Server für Aktualisierungen führt ohne Ende von einer Adresse zur nächsten.</translation>
    </message>
    <message>
        <source>The update server does not have the list of updates.</source>
        <translation>Der Server hat keine Liste der Aktualisierungen.</translation>
    </message>
    <message>
        <source>The update server sent more than a list of updates.</source>
        <translation>Der Server hat mehr als eine Liste der Aktualisierungen geschickt.</translation>
    </message>
    <message>
        <source>The list of updates cannot be read.</source>
        <translation>Die Liste der Aktualisierungen ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Tessarin is up to date</source>
        <translation>Tessarin ist auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>Version %1 is the newest one there is.</source>
        <translation>Version %1 ist die neueste, die es gibt.</translation>
    </message>
    <message>
        <source>Tessarin could not look for updates</source>
        <translation>Tessarin konnte nicht nach Aktualisierungen suchen</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::WelcomeStep</name>
    <message>
        <source>Welcome to Tessarin</source>
        <translation>Willkommen bei Tessarin</translation>
    </message>
    <message>
        <source>Type shortcodes anywhere to instantly insert emoji, kaomoji, and custom snippets.</source>
        <translation>Tippen Sie irgendwo ein Kürzel und fügen Sie sofort Emoji, Kaomoji und eigene Bausteine ein.</translation>
    </message>
    <message>
        <source>System-wide %1shortcode%1 autocomplete for macOS</source>
        <translation>Systemweite %1kürzel%1-Vervollständigung für macOS</translation>
    </message>
</context>
</TS>
