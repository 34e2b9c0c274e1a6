<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>CommandLine</name>
    <message>
        <source>FILE</source>
        <translation>ARCHIVO</translation>
    </message>
    <message>
        <source>open the settings, starting the program if need be</source>
        <translation>abrir la configuración, iniciando el programa si es necesario</translation>
    </message>
    <message>
        <source>switch expansion off or on in the running program</source>
        <translation>desactivar o activar la sustitución en el programa en ejecución</translation>
    </message>
    <message>
        <source>end the running program</source>
        <translation>cerrar el programa en ejecución</translation>
    </message>
    <message>
        <source>let Tessarin judge keys and write into other applications, and switch the session&apos;s accessibility on</source>
        <translation>permitir que Tessarin analice las teclas y escriba en otras aplicaciones, y activar la accesibilidad de la sesión</translation>
    </message>
    <message>
        <source>take that back</source>
        <translation>retirar ese permiso</translation>
    </message>
    <message>
        <source>add the snippets of a file to your own</source>
        <translation>añadir los fragmentos de un archivo a los propios</translation>
    </message>
    <message>
        <source>write your own snippets into a file</source>
        <translation>guardar los fragmentos propios en un archivo</translation>
    </message>
    <message>
        <source>QUERY</source>
        <translation>BÚSQUEDA</translation>
    </message>
    <message>
        <source>list what the popup would offer, best first</source>
        <translation>listar lo que ofrecería la ventana emergente, lo mejor primero</translation>
    </message>
    <message>
        <source>show this text</source>
        <translation>mostrar esta ayuda</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>mostrar la versión</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>NÚMERO</translation>
    </message>
    <message>
        <source>with --search: list at most so many (8)</source>
        <translation>con --search: listar como máximo este número (8)</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>opción desconocida %1</translation>
    </message>
    <message>
        <source>unexpected argument %1</source>
        <translation>argumento inesperado %1</translation>
    </message>
    <message>
        <source>%1 cannot be combined</source>
        <translation>%1 no se puede combinar con otra opción</translation>
    </message>
    <message>
        <source>%1 needs a file</source>
        <translation>%1 necesita un archivo</translation>
    </message>
    <message>
        <source>%1 needs a number from 1 on</source>
        <translation>%1 necesita un número a partir de 1</translation>
    </message>
    <message>
        <source>%1 takes no argument</source>
        <translation>%1 no admite argumentos</translation>
    </message>
    <message>
        <source>%1 needs an argument: %2</source>
        <translation>%1 necesita un argumento: %2</translation>
    </message>
    <message>
        <source>usage: tessarin [OPTION]</source>
        <translation>Uso: tessarin [OPCIÓN]</translation>
    </message>
    <message>
        <source>Expands shortcodes such as :smile in any application. Started again without an option, it opens the
settings of the program that runs.</source>
        <translation>Sustituye abreviaturas como :smile en cualquier aplicación. Si se inicia de nuevo sin opciones, abre la
configuración del programa en ejecución.</translation>
    </message>
    <message>
        <source>TRIGGER</source>
        <translation>ABREVIATURA</translation>
    </message>
    <message>
        <source>list your own snippets</source>
        <translation>listar los fragmentos propios</translation>
    </message>
    <message>
        <source>TRIGGER TEXT</source>
        <translation>ABREVIATURA TEXTO</translation>
    </message>
    <message>
        <source>add a snippet to your own</source>
        <translation>añadir un fragmento a los propios</translation>
    </message>
    <message>
        <source>remove your snippets with that trigger</source>
        <translation>eliminar los fragmentos propios con esa abreviatura</translation>
    </message>
    <message>
        <source>with --list or --search: write a JSON array</source>
        <translation>con --list o --search: escribir una matriz JSON</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOMBRE</translation>
    </message>
    <message>
        <source>with --add: what the popup calls it (the trigger)</source>
        <translation>con --add: nombre en la ventana emergente (si falta, la abreviatura)</translation>
    </message>
    <message>
        <source>WORDS</source>
        <translation>PALABRAS</translation>
    </message>
    <message>
        <source>with --add: further words to find it by, between commas</source>
        <translation>con --add: más palabras para encontrarlo, separadas por comas</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 necesita %2</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>the running instance does not answer</source>
        <translation>el programa en ejecución no responde</translation>
    </message>
    <message>
        <source>Tessarin may judge keys and write into other applications.</source>
        <translation>Tessarin puede analizar las teclas y escribir en otras aplicaciones.</translation>
    </message>
    <message>
        <source>The session&apos;s accessibility is switched on, for later sessions too. Qt applications and browsers that are open now notice it when they are started again; until then, text is pasted there.</source>
        <translation>La accesibilidad de la sesión está activada, también para sesiones posteriores. Las aplicaciones Qt y los navegadores que ya están abiertos lo notarán cuando se reinicien; hasta entonces, el texto se pega en ellos.</translation>
    </message>
    <message>
        <source>The session&apos;s accessibility could not be switched on; text will be pasted.</source>
        <translation>No se pudo activar la accesibilidad de la sesión; el texto se pegará.</translation>
    </message>
    <message>
        <source>Tessarin no longer judges keys or writes into other applications.</source>
        <translation>Tessarin ya no analiza las teclas ni escribe en otras aplicaciones.</translation>
    </message>
    <message>
        <source>no instance is running</source>
        <translation>Tessarin no está en ejecución</translation>
    </message>
    <message>
        <source>no display to open a window on; try from a desktop session</source>
        <translation>no hay ninguna pantalla en la que abrir una ventana; inténtelo desde una sesión de escritorio</translation>
    </message>
</context>
<context>
    <name>Importers</name>
    <message>
        <source>its text would be filled in here</source>
        <translation>una parte de su texto se sustituiría aquí</translation>
    </message>
    <message>
        <source>it places the caret</source>
        <translation>mueve el cursor</translation>
    </message>
    <message>
        <source>it runs a script</source>
        <translation>ejecuta un script</translation>
    </message>
    <message>
        <source>it inserts a file</source>
        <translation>inserta un archivo</translation>
    </message>
    <message>
        <source>it presses the key %1</source>
        <translation>pulsa la tecla %1</translation>
    </message>
    <message>
        <source>it writes a date in another form</source>
        <translation>escribe una fecha en otro formato</translation>
    </message>
    <message>
        <source>it is a script</source>
        <translation>es un script</translation>
    </message>
    <message>
        <source>it has a hotkey only</source>
        <translation>solo tiene un atajo de teclado</translation>
    </message>
    <message>
        <source>it has no abbreviation</source>
        <translation>no tiene abreviatura</translation>
    </message>
    <message>
        <source>it works in every window here</source>
        <translation>aquí funciona en todas las ventanas</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>línea %1</translation>
    </message>
    <message>
        <source>it has more than four columns; a text with separators needs quotes</source>
        <translation>tiene más de cuatro columnas; un texto con separadores debe ir entre comillas</translation>
    </message>
    <message>
        <source>it has a regular expression</source>
        <translation>tiene una expresión regular</translation>
    </message>
    <message>
        <source>it asks by a form</source>
        <translation>muestra un formulario</translation>
    </message>
    <message>
        <source>it inserts an image</source>
        <translation>inserta una imagen</translation>
    </message>
    <message>
        <source>its text is formatted</source>
        <translation>su texto tiene formato</translation>
    </message>
    <message>
        <source>it is not a match</source>
        <translation>no es un fragmento</translation>
    </message>
    <message>
        <source>it has no trigger</source>
        <translation>no tiene abreviatura</translation>
    </message>
    <message>
        <source>it uses %1, which is not among its variables</source>
        <translation>usa %1, que no está entre sus variables</translation>
    </message>
    <message>
        <source>it has a variable of the kind %1</source>
        <translation>tiene una variable de tipo %1</translation>
    </message>
    <message>
        <source>its text does not follow the case of what is typed</source>
        <translation>su texto no sigue las mayúsculas y minúsculas de lo que se escribe</translation>
    </message>
    <message>
        <source>its trigger is too long to type</source>
        <translation>su abreviatura es demasiado larga para escribirla</translation>
    </message>
    <message>
        <source>nothing of its trigger can be part of a shortcode</source>
        <translation>ningún carácter de su abreviatura se puede escribir tras el carácter activador</translation>
    </message>
    <message>
        <source>it has no text</source>
        <translation>no tiene texto</translation>
    </message>
    <message>
        <source>its trigger is now %1</source>
        <translation>su abreviatura es ahora %1</translation>
    </message>
    <message numerus="yes">
        <source>Left out: %n</source>
        <translation>
            <numerusform>Omitido: %n</numerusform>
            <numerusform>Omitidos: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Changed: %n</source>
        <translation>
            <numerusform>Modificado: %n</numerusform>
            <numerusform>Modificados: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>the folder holds nothing that can be imported</source>
        <translation>la carpeta no contiene nada que se pueda importar</translation>
    </message>
    <message>
        <source>the folder cannot be read</source>
        <translation>no se puede leer la carpeta</translation>
    </message>
    <message>
        <source>the file holds no matches</source>
        <translation>el archivo no contiene fragmentos</translation>
    </message>
    <message>
        <source>this kind of file cannot be imported</source>
        <translation>este tipo de archivo no se puede importar</translation>
    </message>
</context>
<context>
    <name>InputMonitoringHelp</name>
    <message>
        <source>Tessarin can judge keys on this session.</source>
        <translation>Tessarin puede analizar las teclas en esta sesión.</translation>
    </message>
    <message>
        <source>Tessarin cannot judge keys on this session.</source>
        <translation>Tessarin no puede analizar las teclas en esta sesión.</translation>
    </message>
    <message>
        <source>Nothing is missing.</source>
        <translation>No falta nada.</translation>
    </message>
    <message>
        <source>This is a Wayland session, in which a program sees only the keys typed into its own windows. Choose an X11 session (often called “Xorg”) when you log in, and shortcodes expand everywhere.</source>
        <translation>Esta es una sesión de Wayland, en la que un programa solo ve las teclas pulsadas en sus propias ventanas. Elija una sesión X11 (a menudo llamada «Xorg») al iniciar la sesión y las abreviaturas se sustituirán en todas partes.</translation>
    </message>
    <message>
        <source>No X server answers. Start Tessarin from an X11 desktop session.</source>
        <translation>No responde ningún servidor X. Inicie Tessarin desde una sesión de escritorio X11.</translation>
    </message>
    <message>
        <source>The X server lacks one of the extensions XInput 2.2, XTest and XKB. Every current X server has them; remote and nested ones may have to be updated or started with them switched on.</source>
        <translation>Al servidor X le falta una de las extensiones XInput 2.2, XTest y XKB. Todos los servidores X actuales las tienen; los remotos y los anidados quizá deban actualizarse o iniciarse con ellas activadas.</translation>
    </message>
    <message>
        <source>Until then no shortcode expands and no popup appears. The tray menu, the settings, your snippets, import and export, and the command line work.</source>
        <translation>Hasta entonces no se sustituye ninguna abreviatura ni aparece ninguna ventana emergente. El menú de la bandeja, la configuración, sus fragmentos, la importación y la exportación, y la línea de comandos funcionan.</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Check for Updates...</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Configuración…</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Permisos</translation>
    </message>
    <message>
        <source>Quit Tessarin</source>
        <translation>Salir de Tessarin</translation>
    </message>
    <message>
        <source>Disable Tessarin</source>
        <translation>Desactivar Tessarin</translation>
    </message>
    <message>
        <source>Enable Tessarin</source>
        <translation>Activar Tessarin</translation>
    </message>
    <message>
        <source>  Input Monitoring: ✓</source>
        <translation>  Supervisión de la entrada: ✓</translation>
    </message>
    <message>
        <source>  Input Monitoring: ✗</source>
        <translation>  Supervisión de la entrada: ✗</translation>
    </message>
    <message>
        <source>  Accessibility: ✓</source>
        <translation>  Accesibilidad: ✓</translation>
    </message>
    <message>
        <source>  Accessibility: ✗ (optional)</source>
        <translation>  Accesibilidad: ✗ (opcional)</translation>
    </message>
</context>
<context>
    <name>Popup</name>
    <message>
        <source>navigate</source>
        <translation>navegar</translation>
    </message>
    <message>
        <source>select</source>
        <translation>elegir</translation>
    </message>
    <message>
        <source>confirm</source>
        <translation>confirmar</translation>
    </message>
    <message>
        <source>cancel</source>
        <translation>cancelar</translation>
    </message>
    <message>
        <source>skin tone</source>
        <translation>piel</translation>
    </message>
    <message>
        <source>1 match</source>
        <translation>1 coincidencia</translation>
    </message>
    <message>
        <source>No matches</source>
        <translation>Sin coincidencias</translation>
    </message>
    <message numerus="yes">
        <source>%n matches</source>
        <translation>
            <numerusform>%n coincidencia</numerusform>
            <numerusform>%n coincidencias</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>unknown request</source>
        <translation>petición desconocida</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activado</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desactivado</translation>
    </message>
    <message>
        <source>quitting</source>
        <translation>saliendo</translation>
    </message>
    <message>
        <source>no settings window</source>
        <translation>no hay ventana de configuración</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>configuración</translation>
    </message>
</context>
<context>
    <name>SnippetCommands</name>
    <message>
        <source>Imported 1 snippet</source>
        <translation>1 fragmento importado</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n snippets</source>
        <translation>
            <numerusform>%n fragmento importado</numerusform>
            <numerusform>%n fragmentos importados</numerusform>
        </translation>
    </message>
    <message>
        <source>Import failed: %1</source>
        <translation>Falló la importación: %1</translation>
    </message>
    <message>
        <source>Exported 1 snippet</source>
        <translation>1 fragmento exportado</translation>
    </message>
    <message numerus="yes">
        <source>Exported %n snippets</source>
        <translation>
            <numerusform>%n fragmento exportado</numerusform>
            <numerusform>%n fragmentos exportados</numerusform>
        </translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Falló la exportación: %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>No se guardó: %1</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>el texto no está en UTF-8</translation>
    </message>
    <message>
        <source>a trigger has letters, digits, _ and - only</source>
        <translation>una abreviatura solo tiene letras, cifras, _ y -</translation>
    </message>
    <message>
        <source>a snippet needs a text</source>
        <translation>un fragmento necesita un texto</translation>
    </message>
    <message>
        <source>there is a snippet with the trigger %1 already</source>
        <translation>ya hay un fragmento con la abreviatura %1</translation>
    </message>
    <message>
        <source>Added 1 snippet</source>
        <translation>1 fragmento añadido</translation>
    </message>
    <message>
        <source>no snippet of yours has the trigger %1</source>
        <translation>ninguno de sus fragmentos tiene la abreviatura %1</translation>
    </message>
    <message>
        <source>Removed 1 snippet</source>
        <translation>1 fragmento eliminado</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n snippets</source>
        <translation>
            <numerusform>%n fragmento eliminado</numerusform>
            <numerusform>%n fragmentos eliminados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SnippetStore</name>
    <message>
        <source>your snippets could not be read when Tessarin started: %1</source>
        <translation>no se pudieron leer sus fragmentos al iniciar Tessarin: %1</translation>
    </message>
</context>
<context>
    <name>SparkleUpdaterService</name>
    <message>
        <source>Unknown</source>
        <translation>Desconocida</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::AppListSettingsTab</name>
    <message>
        <source>Add from running apps</source>
        <translation>Añadir desde las aplicaciones en ejecución</translation>
    </message>
    <message>
        <source>Bundle ID</source>
        <translation>Identificador</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::AppListView</name>
    <message>
        <source>Remove %1</source>
        <translation>Quitar %1</translation>
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
        <translation>Día</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Número</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::BlockedAppsSettingsTab</name>
    <message>
        <source>Blocked Apps</source>
        <translation>Aplicaciones bloqueadas</translation>
    </message>
    <message>
        <source>Tessarin is disabled in these apps. Apps with their own emoji picker (like Slack) are blocked by default.</source>
        <translation>Tessarin está desactivado en estas aplicaciones. Las que tienen su propio selector de emojis (como Slack) están bloqueadas de forma predeterminada.</translation>
    </message>
    <message>
        <source>e.g., com.tinyspeck.slackmacgap</source>
        <translation>p. ej., com.tinyspeck.slackmacgap</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::CheckingDialog</name>
    <message>
        <source>Looking for updates…</source>
        <translation>Buscando actualizaciones…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::DoneStep</name>
    <message>
        <source>You&apos;re All Set!</source>
        <translation>¡Todo listo!</translation>
    </message>
    <message>
        <source>Tessarin runs in your menu bar. Look for the keyboard icon to access settings, manage snippets, and more.</source>
        <translation>Tessarin funciona en la bandeja del sistema. Desde el icono del teclado puede acceder a la configuración, a sus fragmentos y más.</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::ExerciseStep</name>
    <message>
        <source>Try It Out</source>
        <translation>Pruébelo</translation>
    </message>
    <message>
        <source>Try it here</source>
        <translation>Pruébelo aquí</translation>
    </message>
    <message>
        <source>Type the trigger character to start</source>
        <translation>Escriba primero el carácter activador</translation>
    </message>
    <message>
        <source>Type a shortcode like &quot;smile&quot; or &quot;wave&quot;</source>
        <translation>Escriba una abreviatura como «smile» o «wave»</translation>
    </message>
    <message>
        <source>Press Enter or type the trigger again to confirm</source>
        <translation>Pulse Intro o repita el activador para confirmar</translation>
    </message>
    <message>
        <source>Type %1smile%1 in any text field</source>
        <translation>Escriba %1smile%1 en cualquier campo de texto</translation>
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
        <translation>Iniciar al entrar en la sesión</translation>
    </message>
    <message>
        <source>Show menu bar icon</source>
        <translation>Mostrar el icono en la bandeja del sistema</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Trigger Character</source>
        <translation>Carácter activador</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Carácter</translation>
    </message>
    <message>
        <source>Character %1</source>
        <translation>Carácter %1</translation>
    </message>
    <message>
        <source>Version %1 (%2)</source>
        <translation>Versión %1 (%2)</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Type %1shortcode%1 to trigger autocomplete</source>
        <translation>Escriba %1abreviatura%1 para ver las sugerencias</translation>
    </message>
    <message>
        <source>System-wide %1shortcode%1 autocomplete for macOS</source>
        <translation>Completado de %1abreviaturas%1 en todo el sistema para macOS</translation>
    </message>
    <message>
        <source>Leave Return and Tab alone where a shortcode is unlikely</source>
        <translation>No capturar Intro ni Tab donde una abreviatura sea improbable</translation>
    </message>
    <message>
        <source>Only at the start of a word</source>
        <translation>Solo al principio de una palabra</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::MessageDialog</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
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
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Empezar</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::OnboardingWindow</name>
    <message>
        <source>Welcome to Tessarin</source>
        <translation>Bienvenido a Tessarin</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PasteFallbackAppsSettingsTab</name>
    <message>
        <source>Paste Mode Apps</source>
        <translation>Aplicaciones en modo de pegado</translation>
    </message>
    <message>
        <source>These apps use clipboard paste instead of direct text insertion. Terminal emulators, web browsers, and other apps where direct insertion doesn&apos;t work should be listed here.</source>
        <translation>En estas aplicaciones el texto se pega desde el portapapeles en lugar de insertarse directamente. Añada aquí los emuladores de terminal, los navegadores web y las demás aplicaciones en las que no funciona la inserción directa.</translation>
    </message>
    <message>
        <source>e.g., com.example.terminal</source>
        <translation>p. ej., com.example.terminal</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PermissionRow</name>
    <message>
        <source>Grant</source>
        <translation>Conceder</translation>
    </message>
    <message>
        <source>%1: granted</source>
        <translation>%1: concedido</translation>
    </message>
    <message>
        <source>%1: not granted</source>
        <translation>%1: no concedido</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PermissionsSettingsTab</name>
    <message>
        <source>Input Monitoring</source>
        <translation>Supervisión de la entrada</translation>
    </message>
    <message>
        <source>Required — captures keystrokes to detect :shortcodes:</source>
        <translation>Obligatorio — analiza las teclas para reconocer :abreviaturas:</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accesibilidad</translation>
    </message>
    <message>
        <source>Optional — enables cursor positioning and direct text insertion</source>
        <translation>Opcional — permite situar la lista en el cursor e insertar directamente</translation>
    </message>
    <message>
        <source>Without Accessibility, Tessarin uses clipboard paste as a fallback. The popup will appear near the mouse cursor instead of the text caret.</source>
        <translation>Sin la accesibilidad, Tessarin pega el texto desde el portapapeles. La ventana emergente aparece entonces junto al puntero del ratón y no junto al cursor de texto.</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PermissionsStep</name>
    <message>
        <source>Grant Permissions</source>
        <translation>Conceder permisos</translation>
    </message>
    <message>
        <source>Tessarin needs two permissions to work:</source>
        <translation>Tessarin necesita dos permisos para funcionar:</translation>
    </message>
    <message>
        <source>Input Monitoring</source>
        <translation>Supervisión de la entrada</translation>
    </message>
    <message>
        <source>Detects when you type shortcodes</source>
        <translation>Detecta cuándo escribe abreviaturas</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accesibilidad</translation>
    </message>
    <message>
        <source>Positions the popup and inserts text</source>
        <translation>Sitúa la lista e inserta el texto</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PopupAccessible</name>
    <message>
        <source>%1, %2 of %3</source>
        <translation>%1, %2 de %3</translation>
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
        <translation>sin tono de piel</translation>
    </message>
    <message>
        <source>light skin tone</source>
        <translation>tono de piel claro</translation>
    </message>
    <message>
        <source>medium-light skin tone</source>
        <translation>tono de piel claro medio</translation>
    </message>
    <message>
        <source>medium skin tone</source>
        <translation>tono de piel medio</translation>
    </message>
    <message>
        <source>medium-dark skin tone</source>
        <translation>tono de piel oscuro medio</translation>
    </message>
    <message>
        <source>dark skin tone</source>
        <translation>tono de piel oscuro</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PopupListAccessible</name>
    <message>
        <source>Emoji and snippets</source>
        <translation>Emojis y fragmentos</translation>
    </message>
    <message>
        <source>Skin tones</source>
        <translation>Tonos de piel</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::ReleaseNotesView</name>
    <message>
        <source>Release notes</source>
        <translation>Notas de la versión</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::RunningAppsGrid</name>
    <message>
        <source>Add %1</source>
        <translation>Añadir %1</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SettingsView</name>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Snippets</source>
        <translation>Fragmentos</translation>
    </message>
    <message>
        <source>Stats</source>
        <translation>Estadísticas</translation>
    </message>
    <message>
        <source>Blocked Apps</source>
        <translation>Apps bloqueadas</translation>
    </message>
    <message>
        <source>Paste Mode Apps</source>
        <translation>Modo de pegado</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Permisos</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SettingsWindow</name>
    <message>
        <source>Tessarin Settings</source>
        <translation>Configuración de Tessarin</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetEditorView</name>
    <message>
        <source>e.g., ¯\_(ツ)_/¯ or multi-line text</source>
        <translation>p. ej., ¯\_(ツ)_/¯ o un texto de varias líneas</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Edit Snippet</source>
        <translation>Editar fragmento</translation>
    </message>
    <message>
        <source>New Snippet</source>
        <translation>Nuevo fragmento</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>e.g., Shrug</source>
        <translation>p. ej., Encogerse de hombros</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Abreviatura</translation>
    </message>
    <message>
        <source>e.g., shrug</source>
        <translation>p. ej., shrug</translation>
    </message>
    <message>
        <source>Keywords (comma-separated)</source>
        <translation>Palabras clave (separadas por comas)</translation>
    </message>
    <message>
        <source>e.g., whatever, idk</source>
        <translation>p. ej., da igual, ni idea</translation>
    </message>
    <message>
        <source>Replacement</source>
        <translation>Sustitución</translation>
    </message>
    <message>
        <source>Available variables: {{date}}, {{time}}, {{datetime}}, {{clipboard}}</source>
        <translation>Variables disponibles: {{date}}, {{time}}, {{datetime}}, {{clipboard}}</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetFileDialogs</name>
    <message>
        <source>Import Snippets</source>
        <translation>Importar fragmentos</translation>
    </message>
    <message>
        <source>Export Snippets</source>
        <translation>Exportar fragmentos</translation>
    </message>
    <message>
        <source>Snippets</source>
        <translation>Fragmentos</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
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
        <translation>Editar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Custom Snippets</source>
        <translation>Fragmentos personalizados</translation>
    </message>
    <message>
        <source>Edit %1</source>
        <translation>Editar %1</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Eliminar %1</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetsSettingsTab</name>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Custom Snippets</source>
        <translation>Fragmentos personalizados</translation>
    </message>
    <message>
        <source>No custom snippets yet</source>
        <translation>Aún no hay fragmentos personalizados</translation>
    </message>
    <message>
        <source>Built-in emojis: %1</source>
        <translation>Emojis integrados: %1</translation>
    </message>
    <message>
        <source>Import failed: %1</source>
        <translation>Falló la importación: %1</translation>
    </message>
    <message>
        <source>Imported 1 snippet</source>
        <translation>1 fragmento importado</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n snippets</source>
        <translation>
            <numerusform>%n fragmento importado</numerusform>
            <numerusform>%n fragmentos importados</numerusform>
        </translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Falló la exportación: %1</translation>
    </message>
    <message>
        <source>Also of espanso or AutoKey, or a table (CSV). Files and folders can be dropped here.</source>
        <translation>También de espanso o AutoKey, o una tabla (CSV). Se pueden soltar aquí archivos y carpetas.</translation>
    </message>
    <message>
        <source>Import Snippets</source>
        <translation>Importar fragmentos</translation>
    </message>
    <message>
        <source>Left out: %1. Changed: %2.</source>
        <translation>Omitidos: %1. Modificados: %2.</translation>
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
        <translation>Total de sustituciones</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Usage Statistics</source>
        <translation>Estadísticas de uso</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>Últimos 7 días</translation>
    </message>
    <message>
        <source>No usage data yet</source>
        <translation>Aún no hay datos de uso</translation>
    </message>
    <message>
        <source>Most Used</source>
        <translation>Los más usados</translation>
    </message>
    <message>
        <source>No snippets used yet</source>
        <translation>Aún no se ha usado ningún fragmento</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::StepIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Paso %1 de %2</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::TrustPrompt</name>
    <message>
        <source>Allow Tessarin to expand shortcodes?</source>
        <translation>¿Permitir que Tessarin sustituya abreviaturas?</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Permitir</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>After you type the trigger character, Tessarin judges the keys that follow, shows matches beside the caret and replaces the shortcode in the application you are typing in. While idle it sees no key but the trigger. Of what you type, nothing is kept but how often each entry was used.

Saying yes also switches the session&apos;s accessibility on, for later sessions too. Qt applications and browsers that are open now notice it when they are started again; until then, text is pasted there.</source>
        <translation>Después de escribir el carácter activador, Tessarin analiza las teclas siguientes, muestra las coincidencias junto al cursor y sustituye la abreviatura en la aplicación en la que escribe. En reposo no ve ninguna tecla salvo el activador. De lo que escribe, solo se conserva cuántas veces se ha usado cada entrada.

Si acepta, también se activa la accesibilidad de la sesión, incluso para sesiones posteriores. Las aplicaciones Qt y los navegadores que ya están abiertos lo notarán cuando se reinicien; hasta entonces, el texto se pega en ellos.</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::UpdateDialog</name>
    <message>
        <source>Tessarin Update</source>
        <translation>Actualización de Tessarin</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::UpdateFoundDialog</name>
    <message>
        <source>A new version of Tessarin is available</source>
        <translation>Hay una nueva versión de Tessarin disponible</translation>
    </message>
    <message>
        <source>Tessarin %1 can be downloaded now. This is version %2.</source>
        <translation>Ya se puede descargar Tessarin %1. Esta es la versión %2.</translation>
    </message>
    <message>
        <source>What has changed:</source>
        <translation>Novedades:</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Omitir esta versión</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Recordármelo más tarde</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Descargar…</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::UpdateWindows</name>
    <message>
        <source>The update server cannot be reached. Is this computer connected to the network?</source>
        <translation>No se puede contactar con el servidor de actualizaciones. ¿Está este equipo conectado a la red?</translation>
    </message>
    <message>
        <source>The update server took too long to answer.</source>
        <translation>El servidor de actualizaciones ha tardado demasiado en responder.</translation>
    </message>
    <message>
        <source>The update server cannot be trusted, as its certificate is not in order.</source>
        <translation>El servidor de actualizaciones no es de confianza, ya que su certificado no es válido.</translation>
    </message>
    <message>
        <source>Updates are looked for over secure connections only, and the address of the update server does not lead to one.</source>
        <translation>Las actualizaciones solo se buscan mediante conexiones seguras, y la dirección del servidor de actualizaciones no lleva a ninguna.</translation>
    </message>
    <message>
        <source>The update server leads from one address to another without end.</source>
        <translation>El servidor de actualizaciones redirige sin fin de una dirección a otra.</translation>
    </message>
    <message>
        <source>The update server does not have the list of updates.</source>
        <translation>El servidor de actualizaciones no tiene la lista de actualizaciones.</translation>
    </message>
    <message>
        <source>The update server sent more than a list of updates.</source>
        <translation>El servidor de actualizaciones ha enviado más que una lista de actualizaciones.</translation>
    </message>
    <message>
        <source>The list of updates cannot be read.</source>
        <translation>No se puede leer la lista de actualizaciones.</translation>
    </message>
    <message>
        <source>Tessarin is up to date</source>
        <translation>Tessarin está actualizado</translation>
    </message>
    <message>
        <source>Version %1 is the newest one there is.</source>
        <translation>La versión %1 es la más reciente.</translation>
    </message>
    <message>
        <source>Tessarin could not look for updates</source>
        <translation>Tessarin no ha podido buscar actualizaciones</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::WelcomeStep</name>
    <message>
        <source>Welcome to Tessarin</source>
        <translation>Bienvenido a Tessarin</translation>
    </message>
    <message>
        <source>Type shortcodes anywhere to instantly insert emoji, kaomoji, and custom snippets.</source>
        <translation>Escriba abreviaturas en cualquier lugar para insertar al instante emojis, kaomojis y sus propios fragmentos.</translation>
    </message>
    <message>
        <source>System-wide %1shortcode%1 autocomplete for macOS</source>
        <translation>Completado de %1abreviaturas%1 en todo el sistema para macOS</translation>
    </message>
</context>
</TS>
