<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>CommandLine</name>
    <message>
        <source>FILE</source>
        <translation>ARQUIVO</translation>
    </message>
    <message>
        <source>open the settings, starting the program if need be</source>
        <translation>abre as configurações, iniciando o programa se necessário</translation>
    </message>
    <message>
        <source>switch expansion off or on in the running program</source>
        <translation>desativa ou ativa a substituição no programa em execução</translation>
    </message>
    <message>
        <source>end the running program</source>
        <translation>encerra o programa em execução</translation>
    </message>
    <message>
        <source>let Tessarin judge keys and write into other applications, and switch the session&apos;s accessibility on</source>
        <translation>permite que o Tessarin analise as teclas e escreva em outros aplicativos, e ativa a acessibilidade da sessão</translation>
    </message>
    <message>
        <source>take that back</source>
        <translation>revoga essa permissão</translation>
    </message>
    <message>
        <source>add the snippets of a file to your own</source>
        <translation>adiciona os trechos de um arquivo aos seus</translation>
    </message>
    <message>
        <source>write your own snippets into a file</source>
        <translation>grava os seus trechos em um arquivo</translation>
    </message>
    <message>
        <source>QUERY</source>
        <translation>PESQUISA</translation>
    </message>
    <message>
        <source>list what the popup would offer, best first</source>
        <translation>lista o que a janela de sugestões ofereceria, do melhor para o pior</translation>
    </message>
    <message>
        <source>show this text</source>
        <translation>mostra esta ajuda</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>mostra a versão</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>NÚMERO</translation>
    </message>
    <message>
        <source>with --search: list at most so many (8)</source>
        <translation>com --search: lista no máximo esta quantidade (8)</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>opção desconhecida %1</translation>
    </message>
    <message>
        <source>unexpected argument %1</source>
        <translation>argumento inesperado %1</translation>
    </message>
    <message>
        <source>%1 cannot be combined</source>
        <translation>%1 não pode ser combinada com outra opção</translation>
    </message>
    <message>
        <source>%1 needs a file</source>
        <translation>%1 requer um arquivo</translation>
    </message>
    <message>
        <source>%1 needs a number from 1 on</source>
        <translation>%1 requer um número a partir de 1</translation>
    </message>
    <message>
        <source>%1 takes no argument</source>
        <translation>%1 não aceita argumento</translation>
    </message>
    <message>
        <source>%1 needs an argument: %2</source>
        <translation>%1 requer um argumento: %2</translation>
    </message>
    <message>
        <source>usage: tessarin [OPTION]</source>
        <translation>Uso: tessarin [OPÇÃO]</translation>
    </message>
    <message>
        <source>Expands shortcodes such as :smile in any application. Started again without an option, it opens the
settings of the program that runs.</source>
        <translation>Substitui abreviações como :smile em qualquer aplicativo. Iniciado de novo sem opções, abre as
configurações do programa em execução.</translation>
    </message>
    <message>
        <source>TRIGGER</source>
        <translation>ABREVIAÇÃO</translation>
    </message>
    <message>
        <source>list your own snippets</source>
        <translation>lista os seus trechos</translation>
    </message>
    <message>
        <source>TRIGGER TEXT</source>
        <translation>ABREVIAÇÃO TEXTO</translation>
    </message>
    <message>
        <source>add a snippet to your own</source>
        <translation>adiciona um trecho aos seus</translation>
    </message>
    <message>
        <source>remove your snippets with that trigger</source>
        <translation>remove os seus trechos com essa abreviação</translation>
    </message>
    <message>
        <source>with --list or --search: write a JSON array</source>
        <translation>com --list ou --search: escreve um array JSON</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOME</translation>
    </message>
    <message>
        <source>with --add: what the popup calls it (the trigger)</source>
        <translation>com --add: nome mostrado nas sugestões (por padrão, a abreviação)</translation>
    </message>
    <message>
        <source>WORDS</source>
        <translation>PALAVRAS</translation>
    </message>
    <message>
        <source>with --add: further words to find it by, between commas</source>
        <translation>com --add: outras palavras para encontrá-lo, separadas por vírgulas</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 requer %2</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>the running instance does not answer</source>
        <translation>o programa em execução não responde</translation>
    </message>
    <message>
        <source>Tessarin may judge keys and write into other applications.</source>
        <translation>O Tessarin pode analisar as teclas e escrever em outros aplicativos.</translation>
    </message>
    <message>
        <source>The session&apos;s accessibility is switched on, for later sessions too. Qt applications and browsers that are open now notice it when they are started again; until then, text is pasted there.</source>
        <translation>A acessibilidade da sessão está ativada, também para as próximas sessões. Os aplicativos Qt e os navegadores que já estão abertos só perceberão isso quando forem reiniciados; até lá, o texto é colado neles.</translation>
    </message>
    <message>
        <source>The session&apos;s accessibility could not be switched on; text will be pasted.</source>
        <translation>Não foi possível ativar a acessibilidade da sessão; o texto será colado.</translation>
    </message>
    <message>
        <source>Tessarin no longer judges keys or writes into other applications.</source>
        <translation>O Tessarin não analisa mais as teclas nem escreve em outros aplicativos.</translation>
    </message>
    <message>
        <source>no instance is running</source>
        <translation>o Tessarin não está em execução</translation>
    </message>
    <message>
        <source>no display to open a window on; try from a desktop session</source>
        <translation>não há tela em que abrir uma janela; tente a partir de uma sessão gráfica</translation>
    </message>
</context>
<context>
    <name>Importers</name>
    <message>
        <source>its text would be filled in here</source>
        <translation>uma parte do seu texto seria substituída aqui</translation>
    </message>
    <message>
        <source>it places the caret</source>
        <translation>ele move o cursor</translation>
    </message>
    <message>
        <source>it runs a script</source>
        <translation>ele executa um script</translation>
    </message>
    <message>
        <source>it inserts a file</source>
        <translation>ele insere um arquivo</translation>
    </message>
    <message>
        <source>it presses the key %1</source>
        <translation>ele pressiona a tecla %1</translation>
    </message>
    <message>
        <source>it writes a date in another form</source>
        <translation>ele escreve uma data em outro formato</translation>
    </message>
    <message>
        <source>it is a script</source>
        <translation>ele é um script</translation>
    </message>
    <message>
        <source>it has a hotkey only</source>
        <translation>ele só tem um atalho de teclado</translation>
    </message>
    <message>
        <source>it has no abbreviation</source>
        <translation>ele não tem abreviação</translation>
    </message>
    <message>
        <source>it works in every window here</source>
        <translation>aqui ele funciona em todas as janelas</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>linha %1</translation>
    </message>
    <message>
        <source>it has more than four columns; a text with separators needs quotes</source>
        <translation>há mais de quatro colunas; um texto com separadores precisa de aspas</translation>
    </message>
    <message>
        <source>it has a regular expression</source>
        <translation>ele tem uma expressão regular</translation>
    </message>
    <message>
        <source>it asks by a form</source>
        <translation>ele mostra um formulário</translation>
    </message>
    <message>
        <source>it inserts an image</source>
        <translation>ele insere uma imagem</translation>
    </message>
    <message>
        <source>its text is formatted</source>
        <translation>seu texto é formatado</translation>
    </message>
    <message>
        <source>it is not a match</source>
        <translation>ele não é um trecho</translation>
    </message>
    <message>
        <source>it has no trigger</source>
        <translation>ele não tem abreviação</translation>
    </message>
    <message>
        <source>it uses %1, which is not among its variables</source>
        <translation>ele usa %1, que não está entre suas variáveis</translation>
    </message>
    <message>
        <source>it has a variable of the kind %1</source>
        <translation>ele tem uma variável do tipo %1</translation>
    </message>
    <message>
        <source>its text does not follow the case of what is typed</source>
        <translation>seu texto não acompanha as maiúsculas e minúsculas do que é digitado</translation>
    </message>
    <message>
        <source>its trigger is too long to type</source>
        <translation>sua abreviação é longa demais para ser digitada</translation>
    </message>
    <message>
        <source>nothing of its trigger can be part of a shortcode</source>
        <translation>nenhum caractere de sua abreviação pode ser digitado após o caractere de ativação</translation>
    </message>
    <message>
        <source>it has no text</source>
        <translation>ele não tem texto</translation>
    </message>
    <message>
        <source>its trigger is now %1</source>
        <translation>sua abreviação agora é %1</translation>
    </message>
    <message numerus="yes">
        <source>Left out: %n</source>
        <translation>
            <numerusform>Ignorado: %n</numerusform>
            <numerusform>Ignorados: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Changed: %n</source>
        <translation>
            <numerusform>Alterado: %n</numerusform>
            <numerusform>Alterados: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>the folder holds nothing that can be imported</source>
        <translation>a pasta não contém nada que possa ser importado</translation>
    </message>
    <message>
        <source>the folder cannot be read</source>
        <translation>não foi possível ler a pasta</translation>
    </message>
    <message>
        <source>the file holds no matches</source>
        <translation>o arquivo não contém trechos</translation>
    </message>
    <message>
        <source>this kind of file cannot be imported</source>
        <translation>este tipo de arquivo não pode ser importado</translation>
    </message>
</context>
<context>
    <name>InputMonitoringHelp</name>
    <message>
        <source>Tessarin can judge keys on this session.</source>
        <translation>O Tessarin pode analisar as teclas nesta sessão.</translation>
    </message>
    <message>
        <source>Tessarin cannot judge keys on this session.</source>
        <translation>O Tessarin não pode analisar as teclas nesta sessão.</translation>
    </message>
    <message>
        <source>Nothing is missing.</source>
        <translation>Não falta nada.</translation>
    </message>
    <message>
        <source>This is a Wayland session, in which a program sees only the keys typed into its own windows. Choose an X11 session (often called “Xorg”) when you log in, and shortcodes expand everywhere.</source>
        <translation>Esta é uma sessão Wayland, na qual um programa só vê as teclas digitadas em suas próprias janelas. Escolha uma sessão X11 (geralmente chamada de “Xorg”) ao iniciar a sessão, e as abreviações serão substituídas em todo lugar.</translation>
    </message>
    <message>
        <source>No X server answers. Start Tessarin from an X11 desktop session.</source>
        <translation>Nenhum servidor X responde. Inicie o Tessarin a partir de uma sessão gráfica X11.</translation>
    </message>
    <message>
        <source>The X server lacks one of the extensions XInput 2.2, XTest and XKB. Every current X server has them; remote and nested ones may have to be updated or started with them switched on.</source>
        <translation>Falta ao servidor X uma das extensões XInput 2.2, XTest e XKB. Todo servidor X atual as possui; servidores remotos ou aninhados talvez precisem ser atualizados ou iniciados com elas ativadas.</translation>
    </message>
    <message>
        <source>Until then no shortcode expands and no popup appears. The tray menu, the settings, your snippets, import and export, and the command line work.</source>
        <translation>Até lá, nenhuma abreviação é substituída e nenhuma sugestão aparece. O menu da área de notificação, as configurações, os seus trechos, a importação e a exportação e a linha de comando funcionam.</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Check for Updates...</source>
        <translation>Verificar atualizações…</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Configurações…</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Permissões</translation>
    </message>
    <message>
        <source>Quit Tessarin</source>
        <translation>Sair do Tessarin</translation>
    </message>
    <message>
        <source>Disable Tessarin</source>
        <translation>Desativar o Tessarin</translation>
    </message>
    <message>
        <source>Enable Tessarin</source>
        <translation>Ativar o Tessarin</translation>
    </message>
    <message>
        <source>  Input Monitoring: ✓</source>
        <translation>  Monitoramento da entrada: ✓</translation>
    </message>
    <message>
        <source>  Input Monitoring: ✗</source>
        <translation>  Monitoramento da entrada: ✗</translation>
    </message>
    <message>
        <source>  Accessibility: ✓</source>
        <translation>  Acessibilidade: ✓</translation>
    </message>
    <message>
        <source>  Accessibility: ✗ (optional)</source>
        <translation>  Acessibilidade: ✗ (opcional)</translation>
    </message>
</context>
<context>
    <name>Popup</name>
    <message>
        <source>navigate</source>
        <translation>mover</translation>
    </message>
    <message>
        <source>select</source>
        <translation>escolher</translation>
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
        <translation>pele</translation>
    </message>
    <message>
        <source>1 match</source>
        <translation>1 resultado</translation>
    </message>
    <message>
        <source>No matches</source>
        <translation>Nenhum resultado</translation>
    </message>
    <message numerus="yes">
        <source>%n matches</source>
        <translation>
            <numerusform>%n resultado</numerusform>
            <numerusform>%n resultados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>unknown request</source>
        <translation>requisição desconhecida</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ativado</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desativado</translation>
    </message>
    <message>
        <source>quitting</source>
        <translation>encerrando</translation>
    </message>
    <message>
        <source>no settings window</source>
        <translation>não há janela de configurações</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>configurações</translation>
    </message>
</context>
<context>
    <name>SnippetCommands</name>
    <message>
        <source>Imported 1 snippet</source>
        <translation>1 trecho importado</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n snippets</source>
        <translation>
            <numerusform>%n trecho importado</numerusform>
            <numerusform>%n trechos importados</numerusform>
        </translation>
    </message>
    <message>
        <source>Import failed: %1</source>
        <translation>Falha ao importar: %1</translation>
    </message>
    <message>
        <source>Exported 1 snippet</source>
        <translation>1 trecho exportado</translation>
    </message>
    <message numerus="yes">
        <source>Exported %n snippets</source>
        <translation>
            <numerusform>%n trecho exportado</numerusform>
            <numerusform>%n trechos exportados</numerusform>
        </translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Falha ao exportar: %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Não foi salvo: %1</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>o texto não está em UTF-8</translation>
    </message>
    <message>
        <source>a trigger has letters, digits, _ and - only</source>
        <translation>uma abreviação só tem letras, dígitos, _ e -</translation>
    </message>
    <message>
        <source>a snippet needs a text</source>
        <translation>um trecho precisa de um texto</translation>
    </message>
    <message>
        <source>there is a snippet with the trigger %1 already</source>
        <translation>já existe um trecho com a abreviação %1</translation>
    </message>
    <message>
        <source>Added 1 snippet</source>
        <translation>1 trecho adicionado</translation>
    </message>
    <message>
        <source>no snippet of yours has the trigger %1</source>
        <translation>nenhum dos seus trechos tem a abreviação %1</translation>
    </message>
    <message>
        <source>Removed 1 snippet</source>
        <translation>1 trecho removido</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n snippets</source>
        <translation>
            <numerusform>%n trecho removido</numerusform>
            <numerusform>%n trechos removidos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SnippetStore</name>
    <message>
        <source>your snippets could not be read when Tessarin started: %1</source>
        <translation>não foi possível ler os seus trechos quando o Tessarin iniciou: %1</translation>
    </message>
</context>
<context>
    <name>SparkleUpdaterService</name>
    <message>
        <source>Unknown</source>
        <translation>Desconhecida</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::AppListSettingsTab</name>
    <message>
        <source>Add from running apps</source>
        <translation>Adicionar dos aplicativos em execução</translation>
    </message>
    <message>
        <source>Bundle ID</source>
        <translation>Identificador</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::AppListView</name>
    <message>
        <source>Remove %1</source>
        <translation>Remover %1</translation>
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
        <translation>Dia</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Quantidade</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::BlockedAppsSettingsTab</name>
    <message>
        <source>Blocked Apps</source>
        <translation>Aplicativos bloqueados</translation>
    </message>
    <message>
        <source>Tessarin is disabled in these apps. Apps with their own emoji picker (like Slack) are blocked by default.</source>
        <translation>O Tessarin fica desativado nestes aplicativos. Os que têm seu próprio seletor de emojis (como o Slack) são bloqueados por padrão.</translation>
    </message>
    <message>
        <source>e.g., com.tinyspeck.slackmacgap</source>
        <translation>ex.: com.tinyspeck.slackmacgap</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::CheckingDialog</name>
    <message>
        <source>Looking for updates…</source>
        <translation>Verificando atualizações…</translation>
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
        <translation>Tudo pronto!</translation>
    </message>
    <message>
        <source>Tessarin runs in your menu bar. Look for the keyboard icon to access settings, manage snippets, and more.</source>
        <translation>O Tessarin fica na área de notificação. Pelo ícone de teclado você acessa as configurações, os seus trechos e muito mais.</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::ExerciseStep</name>
    <message>
        <source>Try It Out</source>
        <translation>Experimente</translation>
    </message>
    <message>
        <source>Try it here</source>
        <translation>Experimente aqui</translation>
    </message>
    <message>
        <source>Type the trigger character to start</source>
        <translation>Digite primeiro o caractere de ativação</translation>
    </message>
    <message>
        <source>Type a shortcode like &quot;smile&quot; or &quot;wave&quot;</source>
        <translation>Digite uma abreviação como “smile” ou “wave”</translation>
    </message>
    <message>
        <source>Press Enter or type the trigger again to confirm</source>
        <translation>Confirme com Enter ou repita o caractere de ativação</translation>
    </message>
    <message>
        <source>Type %1smile%1 in any text field</source>
        <translation>Digite %1smile%1 em qualquer campo de texto</translation>
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
        <translation>Iniciar junto com a sessão</translation>
    </message>
    <message>
        <source>Show menu bar icon</source>
        <translation>Mostrar ícone na área de notificação</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Inicialização</translation>
    </message>
    <message>
        <source>Trigger Character</source>
        <translation>Caractere de ativação</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aparência</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Atualizações</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Caractere</translation>
    </message>
    <message>
        <source>Character %1</source>
        <translation>Caractere %1</translation>
    </message>
    <message>
        <source>Version %1 (%2)</source>
        <translation>Versão %1 (%2)</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>Verificar atualizações…</translation>
    </message>
    <message>
        <source>Type %1shortcode%1 to trigger autocomplete</source>
        <translation>Digite %1abreviação%1 para ver as sugestões</translation>
    </message>
    <message>
        <source>System-wide %1shortcode%1 autocomplete for macOS</source>
        <translation>Complementação de %1abreviações%1 em todo o sistema para macOS</translation>
    </message>
    <message>
        <source>Leave Return and Tab alone where a shortcode is unlikely</source>
        <translation>Não capturar Enter e Tab onde uma abreviação for improvável</translation>
    </message>
    <message>
        <source>Only at the start of a word</source>
        <translation>Somente no início de uma palavra</translation>
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
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Começar</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::OnboardingWindow</name>
    <message>
        <source>Welcome to Tessarin</source>
        <translation>Boas-vindas ao Tessarin</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PasteFallbackAppsSettingsTab</name>
    <message>
        <source>Paste Mode Apps</source>
        <translation>Aplicativos em modo de colagem</translation>
    </message>
    <message>
        <source>These apps use clipboard paste instead of direct text insertion. Terminal emulators, web browsers, and other apps where direct insertion doesn&apos;t work should be listed here.</source>
        <translation>Nestes aplicativos, o texto é colado da área de transferência em vez de ser inserido diretamente. Adicione aqui os emuladores de terminal, os navegadores web e os outros aplicativos em que a inserção direta não funciona.</translation>
    </message>
    <message>
        <source>e.g., com.example.terminal</source>
        <translation>ex.: com.example.terminal</translation>
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
        <translation>%1: concedida</translation>
    </message>
    <message>
        <source>%1: not granted</source>
        <translation>%1: não concedida</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PermissionsSettingsTab</name>
    <message>
        <source>Input Monitoring</source>
        <translation>Monitoramento da entrada</translation>
    </message>
    <message>
        <source>Required — captures keystrokes to detect :shortcodes:</source>
        <translation>Obrigatória — analisa as teclas para reconhecer :abreviações:</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Acessibilidade</translation>
    </message>
    <message>
        <source>Optional — enables cursor positioning and direct text insertion</source>
        <translation>Opcional — permite posicionar a lista no cursor e inserir diretamente</translation>
    </message>
    <message>
        <source>Without Accessibility, Tessarin uses clipboard paste as a fallback. The popup will appear near the mouse cursor instead of the text caret.</source>
        <translation>Sem a acessibilidade, o Tessarin cola o texto da área de transferência. A lista aparece então perto do ponteiro do mouse, e não do cursor de texto.</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PermissionsStep</name>
    <message>
        <source>Grant Permissions</source>
        <translation>Conceder permissões</translation>
    </message>
    <message>
        <source>Tessarin needs two permissions to work:</source>
        <translation>O Tessarin precisa de duas permissões para funcionar:</translation>
    </message>
    <message>
        <source>Input Monitoring</source>
        <translation>Monitoramento da entrada</translation>
    </message>
    <message>
        <source>Detects when you type shortcodes</source>
        <translation>Detecta quando você digita abreviações</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Acessibilidade</translation>
    </message>
    <message>
        <source>Positions the popup and inserts text</source>
        <translation>Posiciona a lista e insere o texto</translation>
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
        <translation>sem tom de pele</translation>
    </message>
    <message>
        <source>light skin tone</source>
        <translation>pele clara</translation>
    </message>
    <message>
        <source>medium-light skin tone</source>
        <translation>pele morena clara</translation>
    </message>
    <message>
        <source>medium skin tone</source>
        <translation>pele morena</translation>
    </message>
    <message>
        <source>medium-dark skin tone</source>
        <translation>pele morena escura</translation>
    </message>
    <message>
        <source>dark skin tone</source>
        <translation>pele escura</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PopupListAccessible</name>
    <message>
        <source>Emoji and snippets</source>
        <translation>Emojis e trechos</translation>
    </message>
    <message>
        <source>Skin tones</source>
        <translation>Tons de pele</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::ReleaseNotesView</name>
    <message>
        <source>Release notes</source>
        <translation>Notas da versão</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::RunningAppsGrid</name>
    <message>
        <source>Add %1</source>
        <translation>Adicionar %1</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SettingsView</name>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Snippets</source>
        <translation>Trechos</translation>
    </message>
    <message>
        <source>Stats</source>
        <translation>Estatísticas</translation>
    </message>
    <message>
        <source>Blocked Apps</source>
        <translation>Apps bloqueados</translation>
    </message>
    <message>
        <source>Paste Mode Apps</source>
        <translation>Modo de colagem</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Permissões</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SettingsWindow</name>
    <message>
        <source>Tessarin Settings</source>
        <translation>Configurações do Tessarin</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetEditorView</name>
    <message>
        <source>e.g., ¯\_(ツ)_/¯ or multi-line text</source>
        <translation>ex.: ¯\_(ツ)_/¯ ou um texto de várias linhas</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Edit Snippet</source>
        <translation>Editar trecho</translation>
    </message>
    <message>
        <source>New Snippet</source>
        <translation>Novo trecho</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>e.g., Shrug</source>
        <translation>ex.: Dar de ombros</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Abreviação</translation>
    </message>
    <message>
        <source>e.g., shrug</source>
        <translation>ex.: shrug</translation>
    </message>
    <message>
        <source>Keywords (comma-separated)</source>
        <translation>Palavras-chave (separadas por vírgulas)</translation>
    </message>
    <message>
        <source>e.g., whatever, idk</source>
        <translation>ex.: tanto faz, sei lá</translation>
    </message>
    <message>
        <source>Replacement</source>
        <translation>Substituição</translation>
    </message>
    <message>
        <source>Available variables: {{date}}, {{time}}, {{datetime}}, {{clipboard}}</source>
        <translation>Variáveis disponíveis: {{date}}, {{time}}, {{datetime}}, {{clipboard}}</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Pré-visualização</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetFileDialogs</name>
    <message>
        <source>Import Snippets</source>
        <translation>Importar trechos</translation>
    </message>
    <message>
        <source>Export Snippets</source>
        <translation>Exportar trechos</translation>
    </message>
    <message>
        <source>Snippets</source>
        <translation>Trechos</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos os arquivos</translation>
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
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Custom Snippets</source>
        <translation>Trechos personalizados</translation>
    </message>
    <message>
        <source>Edit %1</source>
        <translation>Editar %1</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Excluir %1</translation>
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
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Custom Snippets</source>
        <translation>Trechos personalizados</translation>
    </message>
    <message>
        <source>No custom snippets yet</source>
        <translation>Nenhum trecho personalizado ainda</translation>
    </message>
    <message>
        <source>Built-in emojis: %1</source>
        <translation>Emojis integrados: %1</translation>
    </message>
    <message>
        <source>Import failed: %1</source>
        <translation>Falha ao importar: %1</translation>
    </message>
    <message>
        <source>Imported 1 snippet</source>
        <translation>1 trecho importado</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n snippets</source>
        <translation>
            <numerusform>%n trecho importado</numerusform>
            <numerusform>%n trechos importados</numerusform>
        </translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Falha ao exportar: %1</translation>
    </message>
    <message>
        <source>Also of espanso or AutoKey, or a table (CSV). Files and folders can be dropped here.</source>
        <translation>Também do espanso ou do AutoKey, ou uma tabela (CSV). Arquivos e pastas podem ser soltos aqui.</translation>
    </message>
    <message>
        <source>Import Snippets</source>
        <translation>Importar trechos</translation>
    </message>
    <message>
        <source>Left out: %1. Changed: %2.</source>
        <translation>Ignorados: %1. Alterados: %2.</translation>
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
        <translation>Total de substituições</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>Usage Statistics</source>
        <translation>Estatísticas de uso</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>Últimos 7 dias</translation>
    </message>
    <message>
        <source>No usage data yet</source>
        <translation>Nenhum dado de uso ainda</translation>
    </message>
    <message>
        <source>Most Used</source>
        <translation>Mais usados</translation>
    </message>
    <message>
        <source>No snippets used yet</source>
        <translation>Nenhum trecho usado ainda</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::StepIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Etapa %1 de %2</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::TrustPrompt</name>
    <message>
        <source>Allow Tessarin to expand shortcodes?</source>
        <translation>Permitir que o Tessarin substitua abreviações?</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Permitir</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Agora não</translation>
    </message>
    <message>
        <source>After you type the trigger character, Tessarin judges the keys that follow, shows matches beside the caret and replaces the shortcode in the application you are typing in. While idle it sees no key but the trigger. Of what you type, nothing is kept but how often each entry was used.

Saying yes also switches the session&apos;s accessibility on, for later sessions too. Qt applications and browsers that are open now notice it when they are started again; until then, text is pasted there.</source>
        <translation>Depois que você digita o caractere de ativação, o Tessarin analisa as teclas seguintes, mostra os resultados perto do cursor e substitui a abreviação no aplicativo em que você está escrevendo. Em repouso, ele não vê nenhuma tecla além do caractere de ativação. Do que você digita, só é guardado quantas vezes cada entrada foi usada.

Se você permitir, a acessibilidade da sessão também será ativada, inclusive para as próximas sessões. Os aplicativos Qt e os navegadores que já estão abertos só perceberão isso quando forem reiniciados; até lá, o texto é colado neles.</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::UpdateDialog</name>
    <message>
        <source>Tessarin Update</source>
        <translation>Atualização do Tessarin</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::UpdateFoundDialog</name>
    <message>
        <source>A new version of Tessarin is available</source>
        <translation>Uma nova versão do Tessarin está disponível</translation>
    </message>
    <message>
        <source>Tessarin %1 can be downloaded now. This is version %2.</source>
        <translation>O Tessarin %1 já pode ser baixado. Esta é a versão %2.</translation>
    </message>
    <message>
        <source>What has changed:</source>
        <translation>O que mudou:</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Ignorar esta versão</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Lembrar mais tarde</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Baixar…</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::UpdateWindows</name>
    <message>
        <source>The update server cannot be reached. Is this computer connected to the network?</source>
        <translation>Não foi possível acessar o servidor de atualizações. Este computador está conectado à rede?</translation>
    </message>
    <message>
        <source>The update server took too long to answer.</source>
        <translation>O servidor de atualizações demorou demais para responder.</translation>
    </message>
    <message>
        <source>The update server cannot be trusted, as its certificate is not in order.</source>
        <translation>O servidor de atualizações não é confiável, pois seu certificado não é válido.</translation>
    </message>
    <message>
        <source>Updates are looked for over secure connections only, and the address of the update server does not lead to one.</source>
        <translation>As atualizações só são procuradas por conexões seguras, e o endereço do servidor de atualizações não leva a uma.</translation>
    </message>
    <message>
        <source>The update server leads from one address to another without end.</source>
        <translation>O servidor de atualizações redireciona de um endereço para outro sem fim.</translation>
    </message>
    <message>
        <source>The update server does not have the list of updates.</source>
        <translation>O servidor de atualizações não tem a lista de atualizações.</translation>
    </message>
    <message>
        <source>The update server sent more than a list of updates.</source>
        <translation>O servidor de atualizações enviou mais do que uma lista de atualizações.</translation>
    </message>
    <message>
        <source>The list of updates cannot be read.</source>
        <translation>Não foi possível ler a lista de atualizações.</translation>
    </message>
    <message>
        <source>Tessarin is up to date</source>
        <translation>O Tessarin está atualizado</translation>
    </message>
    <message>
        <source>Version %1 is the newest one there is.</source>
        <translation>A versão %1 é a mais recente.</translation>
    </message>
    <message>
        <source>Tessarin could not look for updates</source>
        <translation>O Tessarin não conseguiu verificar as atualizações</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::WelcomeStep</name>
    <message>
        <source>Welcome to Tessarin</source>
        <translation>Boas-vindas ao Tessarin</translation>
    </message>
    <message>
        <source>Type shortcodes anywhere to instantly insert emoji, kaomoji, and custom snippets.</source>
        <translation>Digite abreviações em qualquer lugar para inserir na hora emojis, kaomojis e os seus próprios trechos.</translation>
    </message>
    <message>
        <source>System-wide %1shortcode%1 autocomplete for macOS</source>
        <translation>Complementação de %1abreviações%1 em todo o sistema para macOS</translation>
    </message>
</context>
</TS>
