<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>CommandLine</name>
    <message>
        <source>FILE</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>open the settings, starting the program if need be</source>
        <translation>打开设置，必要时启动程序</translation>
    </message>
    <message>
        <source>switch expansion off or on in the running program</source>
        <translation>在运行中的程序里关闭或开启替换</translation>
    </message>
    <message>
        <source>end the running program</source>
        <translation>退出运行中的程序</translation>
    </message>
    <message>
        <source>let Tessarin judge keys and write into other applications, and switch the session&apos;s accessibility on</source>
        <translation>允许 Tessarin 判断按键并向其他应用写入，同时开启会话的辅助功能</translation>
    </message>
    <message>
        <source>take that back</source>
        <translation>撤销该许可</translation>
    </message>
    <message>
        <source>add the snippets of a file to your own</source>
        <translation>将文件中的片段添加到您的片段</translation>
    </message>
    <message>
        <source>write your own snippets into a file</source>
        <translation>将您的片段写入文件</translation>
    </message>
    <message>
        <source>QUERY</source>
        <translation>查询</translation>
    </message>
    <message>
        <source>list what the popup would offer, best first</source>
        <translation>列出弹出列表会提供的内容，最佳匹配在前</translation>
    </message>
    <message>
        <source>show this text</source>
        <translation>显示此帮助</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>显示版本</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>数目</translation>
    </message>
    <message>
        <source>with --search: list at most so many (8)</source>
        <translation>与 --search 一起使用：最多列出的数目（8）</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>未知选项 %1</translation>
    </message>
    <message>
        <source>unexpected argument %1</source>
        <translation>意外的参数 %1</translation>
    </message>
    <message>
        <source>%1 cannot be combined</source>
        <translation>%1 不能与其他选项一起使用</translation>
    </message>
    <message>
        <source>%1 needs a file</source>
        <translation>%1 需要一个文件</translation>
    </message>
    <message>
        <source>%1 needs a number from 1 on</source>
        <translation>%1 需要一个大于等于 1 的数字</translation>
    </message>
    <message>
        <source>%1 takes no argument</source>
        <translation>%1 不接受参数</translation>
    </message>
    <message>
        <source>%1 needs an argument: %2</source>
        <translation>%1 需要参数：%2</translation>
    </message>
    <message>
        <source>usage: tessarin [OPTION]</source>
        <translation>用法：tessarin [选项]</translation>
    </message>
    <message>
        <source>Expands shortcodes such as :smile in any application. Started again without an option, it opens the
settings of the program that runs.</source>
        <translation>在任何应用中替换 :smile 之类的短代码。程序运行时不带选项再次启动，
会打开其设置。</translation>
    </message>
    <message>
        <source>TRIGGER</source>
        <translation>短代码</translation>
    </message>
    <message>
        <source>list your own snippets</source>
        <translation>列出您的片段</translation>
    </message>
    <message>
        <source>TRIGGER TEXT</source>
        <translation>短代码 文本</translation>
    </message>
    <message>
        <source>add a snippet to your own</source>
        <translation>添加一个片段</translation>
    </message>
    <message>
        <source>remove your snippets with that trigger</source>
        <translation>移除您使用该短代码的片段</translation>
    </message>
    <message>
        <source>with --list or --search: write a JSON array</source>
        <translation>与 --list 或 --search 一起使用：输出 JSON 数组</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>with --add: what the popup calls it (the trigger)</source>
        <translation>与 --add 一起使用：弹出列表中的名称（默认为短代码）</translation>
    </message>
    <message>
        <source>WORDS</source>
        <translation>词语</translation>
    </message>
    <message>
        <source>with --add: further words to find it by, between commas</source>
        <translation>与 --add 一起使用：用于查找的其他词语，以英文逗号分隔</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 需要 %2</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>the running instance does not answer</source>
        <translation>运行中的程序没有响应</translation>
    </message>
    <message>
        <source>Tessarin may judge keys and write into other applications.</source>
        <translation>Tessarin 可以判断按键并向其他应用写入。</translation>
    </message>
    <message>
        <source>The session&apos;s accessibility is switched on, for later sessions too. Qt applications and browsers that are open now notice it when they are started again; until then, text is pasted there.</source>
        <translation>会话的辅助功能已开启，对以后的会话也有效。已打开的 Qt 应用和浏览器重新启动后才会生效；在此之前，文本会以粘贴方式输入。</translation>
    </message>
    <message>
        <source>The session&apos;s accessibility could not be switched on; text will be pasted.</source>
        <translation>无法开启会话的辅助功能；文本将以粘贴方式输入。</translation>
    </message>
    <message>
        <source>Tessarin no longer judges keys or writes into other applications.</source>
        <translation>Tessarin 不再判断按键，也不再向其他应用写入。</translation>
    </message>
    <message>
        <source>no instance is running</source>
        <translation>Tessarin 没有运行</translation>
    </message>
    <message>
        <source>no display to open a window on; try from a desktop session</source>
        <translation>没有可打开窗口的显示器；请在桌面会话中重试</translation>
    </message>
</context>
<context>
    <name>Importers</name>
    <message>
        <source>its text would be filled in here</source>
        <translation>其文本的一部分在这里会被替换</translation>
    </message>
    <message>
        <source>it places the caret</source>
        <translation>它会移动光标</translation>
    </message>
    <message>
        <source>it runs a script</source>
        <translation>它会运行脚本</translation>
    </message>
    <message>
        <source>it inserts a file</source>
        <translation>它会插入文件</translation>
    </message>
    <message>
        <source>it presses the key %1</source>
        <translation>它会按下 %1 键</translation>
    </message>
    <message>
        <source>it writes a date in another form</source>
        <translation>它以其他格式写入日期</translation>
    </message>
    <message>
        <source>it is a script</source>
        <translation>它是脚本</translation>
    </message>
    <message>
        <source>it has a hotkey only</source>
        <translation>它只有快捷键</translation>
    </message>
    <message>
        <source>it has no abbreviation</source>
        <translation>它没有缩写</translation>
    </message>
    <message>
        <source>it works in every window here</source>
        <translation>它在这里对所有窗口有效</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>it has more than four columns; a text with separators needs quotes</source>
        <translation>超过四列；包含分隔符的文本需要加引号</translation>
    </message>
    <message>
        <source>it has a regular expression</source>
        <translation>它使用正则表达式</translation>
    </message>
    <message>
        <source>it asks by a form</source>
        <translation>它会显示表单</translation>
    </message>
    <message>
        <source>it inserts an image</source>
        <translation>它会插入图像</translation>
    </message>
    <message>
        <source>its text is formatted</source>
        <translation>其文本带有格式</translation>
    </message>
    <message>
        <source>it is not a match</source>
        <translation>它不是片段</translation>
    </message>
    <message>
        <source>it has no trigger</source>
        <translation>它没有短代码</translation>
    </message>
    <message>
        <source>it uses %1, which is not among its variables</source>
        <translation>它使用了 %1，但其变量中没有这一项</translation>
    </message>
    <message>
        <source>it has a variable of the kind %1</source>
        <translation>它使用了类型为 %1 的变量</translation>
    </message>
    <message>
        <source>its text does not follow the case of what is typed</source>
        <translation>其文本不会随输入的大小写变化</translation>
    </message>
    <message>
        <source>its trigger is too long to type</source>
        <translation>其短代码太长，无法输入</translation>
    </message>
    <message>
        <source>nothing of its trigger can be part of a shortcode</source>
        <translation>其短代码中没有可在触发字符之后输入的字符</translation>
    </message>
    <message>
        <source>it has no text</source>
        <translation>它没有文本</translation>
    </message>
    <message>
        <source>its trigger is now %1</source>
        <translation>其短代码现在为 %1</translation>
    </message>
    <message numerus="yes">
        <source>Left out: %n</source>
        <translation>
            <numerusform>已略过：%n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Changed: %n</source>
        <translation>
            <numerusform>已更改：%n</numerusform>
        </translation>
    </message>
    <message>
        <source>the folder holds nothing that can be imported</source>
        <translation>文件夹中没有可导入的内容</translation>
    </message>
    <message>
        <source>the folder cannot be read</source>
        <translation>无法读取文件夹</translation>
    </message>
    <message>
        <source>the file holds no matches</source>
        <translation>文件中没有片段</translation>
    </message>
    <message>
        <source>this kind of file cannot be imported</source>
        <translation>无法导入此类文件</translation>
    </message>
</context>
<context>
    <name>InputMonitoringHelp</name>
    <message>
        <source>Tessarin can judge keys on this session.</source>
        <translation>Tessarin 可以在此会话中判断按键。</translation>
    </message>
    <message>
        <source>Tessarin cannot judge keys on this session.</source>
        <translation>Tessarin 无法在此会话中判断按键。</translation>
    </message>
    <message>
        <source>Nothing is missing.</source>
        <translation>不缺少任何内容。</translation>
    </message>
    <message>
        <source>This is a Wayland session, in which a program sees only the keys typed into its own windows. Choose an X11 session (often called “Xorg”) when you log in, and shortcodes expand everywhere.</source>
        <translation>这是 Wayland 会话，程序只能看到在自己窗口中输入的按键。请在登录时选择 X11 会话（通常称为“Xorg”），短代码即可在任何地方被替换。</translation>
    </message>
    <message>
        <source>No X server answers. Start Tessarin from an X11 desktop session.</source>
        <translation>没有 X 服务器响应。请在 X11 桌面会话中启动 Tessarin。</translation>
    </message>
    <message>
        <source>The X server lacks one of the extensions XInput 2.2, XTest and XKB. Every current X server has them; remote and nested ones may have to be updated or started with them switched on.</source>
        <translation>X 服务器缺少 XInput 2.2、XTest 和 XKB 扩展中的一个。当前的 X 服务器都带有这些扩展；远程或嵌套的 X 服务器可能需要更新，或在启动时启用这些扩展。</translation>
    </message>
    <message>
        <source>Until then no shortcode expands and no popup appears. The tray menu, the settings, your snippets, import and export, and the command line work.</source>
        <translation>在此之前，短代码不会被替换，也不会出现弹出列表。托盘菜单、设置、您的片段、导入和导出以及命令行均可使用。</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Check for Updates...</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>权限</translation>
    </message>
    <message>
        <source>Quit Tessarin</source>
        <translation>退出 Tessarin</translation>
    </message>
    <message>
        <source>Disable Tessarin</source>
        <translation>禁用 Tessarin</translation>
    </message>
    <message>
        <source>Enable Tessarin</source>
        <translation>启用 Tessarin</translation>
    </message>
    <message>
        <source>  Input Monitoring: ✓</source>
        <translation>  输入监控：✓</translation>
    </message>
    <message>
        <source>  Input Monitoring: ✗</source>
        <translation>  输入监控：✗</translation>
    </message>
    <message>
        <source>  Accessibility: ✓</source>
        <translation>  辅助功能：✓</translation>
    </message>
    <message>
        <source>  Accessibility: ✗ (optional)</source>
        <translation>  辅助功能：✗（可选）</translation>
    </message>
</context>
<context>
    <name>Popup</name>
    <message>
        <source>navigate</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>confirm</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>skin tone</source>
        <translation>肤色</translation>
    </message>
    <message>
        <source>1 match</source>
        <translation>1 个匹配项</translation>
    </message>
    <message>
        <source>No matches</source>
        <translation>无匹配项</translation>
    </message>
    <message numerus="yes">
        <source>%n matches</source>
        <translation>
            <numerusform>%n 个匹配项</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>unknown request</source>
        <translation>未知请求</translation>
    </message>
    <message>
        <source>on</source>
        <translation>已开启</translation>
    </message>
    <message>
        <source>off</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>quitting</source>
        <translation>正在退出</translation>
    </message>
    <message>
        <source>no settings window</source>
        <translation>没有设置窗口</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>设置</translation>
    </message>
</context>
<context>
    <name>SnippetCommands</name>
    <message>
        <source>Imported 1 snippet</source>
        <translation>已导入 1 个片段</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n snippets</source>
        <translation>
            <numerusform>已导入 %n 个片段</numerusform>
        </translation>
    </message>
    <message>
        <source>Import failed: %1</source>
        <translation>导入失败：%1</translation>
    </message>
    <message>
        <source>Exported 1 snippet</source>
        <translation>已导出 1 个片段</translation>
    </message>
    <message numerus="yes">
        <source>Exported %n snippets</source>
        <translation>
            <numerusform>已导出 %n 个片段</numerusform>
        </translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>导出失败：%1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>未保存：%1</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>文本不是 UTF-8 编码</translation>
    </message>
    <message>
        <source>a trigger has letters, digits, _ and - only</source>
        <translation>短代码只能包含字母、数字、_ 和 -</translation>
    </message>
    <message>
        <source>a snippet needs a text</source>
        <translation>片段需要文本</translation>
    </message>
    <message>
        <source>there is a snippet with the trigger %1 already</source>
        <translation>已有使用短代码 %1 的片段</translation>
    </message>
    <message>
        <source>Added 1 snippet</source>
        <translation>已添加 1 个片段</translation>
    </message>
    <message>
        <source>no snippet of yours has the trigger %1</source>
        <translation>您的片段都没有使用短代码 %1</translation>
    </message>
    <message>
        <source>Removed 1 snippet</source>
        <translation>已移除 1 个片段</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n snippets</source>
        <translation>
            <numerusform>已移除 %n 个片段</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SnippetStore</name>
    <message>
        <source>your snippets could not be read when Tessarin started: %1</source>
        <translation>Tessarin 启动时无法读取您的片段：%1</translation>
    </message>
</context>
<context>
    <name>SparkleUpdaterService</name>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::AppListSettingsTab</name>
    <message>
        <source>Add from running apps</source>
        <translation>从正在运行的应用中添加</translation>
    </message>
    <message>
        <source>Bundle ID</source>
        <translation>标识符</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::AppListView</name>
    <message>
        <source>Remove %1</source>
        <translation>移除 %1</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::BarChart</name>
    <message>
        <source>%1: %2, %3: %4</source>
        <translation>%1：%2，%3：%4</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>次数</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::BlockedAppsSettingsTab</name>
    <message>
        <source>Blocked Apps</source>
        <translation>已屏蔽的应用</translation>
    </message>
    <message>
        <source>Tessarin is disabled in these apps. Apps with their own emoji picker (like Slack) are blocked by default.</source>
        <translation>Tessarin 在这些应用中禁用。自带表情符号选择器的应用（如 Slack）默认被屏蔽。</translation>
    </message>
    <message>
        <source>e.g., com.tinyspeck.slackmacgap</source>
        <translation>例如：com.tinyspeck.slackmacgap</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::CheckingDialog</name>
    <message>
        <source>Looking for updates…</source>
        <translation>正在检查更新…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::DoneStep</name>
    <message>
        <source>You&apos;re All Set!</source>
        <translation>一切就绪！</translation>
    </message>
    <message>
        <source>Tessarin runs in your menu bar. Look for the keyboard icon to access settings, manage snippets, and more.</source>
        <translation>Tessarin 在系统托盘中运行。通过键盘图标可以打开设置、管理片段等。</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::ExerciseStep</name>
    <message>
        <source>Try It Out</source>
        <translation>试一试</translation>
    </message>
    <message>
        <source>Try it here</source>
        <translation>在此试用</translation>
    </message>
    <message>
        <source>Type the trigger character to start</source>
        <translation>先输入触发字符</translation>
    </message>
    <message>
        <source>Type a shortcode like &quot;smile&quot; or &quot;wave&quot;</source>
        <translation>输入短代码，例如“smile”或“wave”</translation>
    </message>
    <message>
        <source>Press Enter or type the trigger again to confirm</source>
        <translation>按回车键或再次输入触发字符以确认</translation>
    </message>
    <message>
        <source>Type %1smile%1 in any text field</source>
        <translation>在任意文本框中输入 %1smile%1</translation>
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
        <translation>登录时启动</translation>
    </message>
    <message>
        <source>Show menu bar icon</source>
        <translation>在系统托盘中显示图标</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>Trigger Character</source>
        <translation>触发字符</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>字符</translation>
    </message>
    <message>
        <source>Character %1</source>
        <translation>字符 %1</translation>
    </message>
    <message>
        <source>Version %1 (%2)</source>
        <translation>版本 %1（%2）</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>Type %1shortcode%1 to trigger autocomplete</source>
        <translation>输入 %1短代码%1 即可显示候选项</translation>
    </message>
    <message>
        <source>System-wide %1shortcode%1 autocomplete for macOS</source>
        <translation>适用于 macOS 的全系统 %1短代码%1 自动补全</translation>
    </message>
    <message>
        <source>Leave Return and Tab alone where a shortcode is unlikely</source>
        <translation>在不太可能是短代码的位置不拦截回车键和 Tab 键</translation>
    </message>
    <message>
        <source>Only at the start of a word</source>
        <translation>仅在单词开头</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::MessageDialog</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::MostUsedList</name>
    <message>
        <source>%1. %2, %3</source>
        <translation>%1. %2，%3</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::OnboardingView</name>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>开始使用</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::OnboardingWindow</name>
    <message>
        <source>Welcome to Tessarin</source>
        <translation>欢迎使用 Tessarin</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PasteFallbackAppsSettingsTab</name>
    <message>
        <source>Paste Mode Apps</source>
        <translation>粘贴模式的应用</translation>
    </message>
    <message>
        <source>These apps use clipboard paste instead of direct text insertion. Terminal emulators, web browsers, and other apps where direct insertion doesn&apos;t work should be listed here.</source>
        <translation>在这些应用中，文本通过剪贴板粘贴，而不是直接插入。请在此添加终端模拟器、网页浏览器以及其他无法直接插入文本的应用。</translation>
    </message>
    <message>
        <source>e.g., com.example.terminal</source>
        <translation>例如：com.example.terminal</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PermissionRow</name>
    <message>
        <source>Grant</source>
        <translation>授权</translation>
    </message>
    <message>
        <source>%1: granted</source>
        <translation>%1：已授权</translation>
    </message>
    <message>
        <source>%1: not granted</source>
        <translation>%1：未授权</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PermissionsSettingsTab</name>
    <message>
        <source>Input Monitoring</source>
        <translation>输入监控</translation>
    </message>
    <message>
        <source>Required — captures keystrokes to detect :shortcodes:</source>
        <translation>必需 — 判断按键以识别 :短代码:</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>辅助功能</translation>
    </message>
    <message>
        <source>Optional — enables cursor positioning and direct text insertion</source>
        <translation>可选 — 用于在光标处显示列表和直接插入文本</translation>
    </message>
    <message>
        <source>Without Accessibility, Tessarin uses clipboard paste as a fallback. The popup will appear near the mouse cursor instead of the text caret.</source>
        <translation>没有辅助功能时，Tessarin 会通过剪贴板粘贴。弹出列表将显示在鼠标指针附近，而不是文本光标旁。</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PermissionsStep</name>
    <message>
        <source>Grant Permissions</source>
        <translation>授予权限</translation>
    </message>
    <message>
        <source>Tessarin needs two permissions to work:</source>
        <translation>Tessarin 需要两项权限才能工作：</translation>
    </message>
    <message>
        <source>Input Monitoring</source>
        <translation>输入监控</translation>
    </message>
    <message>
        <source>Detects when you type shortcodes</source>
        <translation>检测您何时输入短代码</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>辅助功能</translation>
    </message>
    <message>
        <source>Positions the popup and inserts text</source>
        <translation>定位弹出列表并插入文本</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PopupAccessible</name>
    <message>
        <source>%1, %2 of %3</source>
        <translation>%1，第 %2 项，共 %3 项</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PopupItemAccessible</name>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>no skin tone</source>
        <translation>无肤色</translation>
    </message>
    <message>
        <source>light skin tone</source>
        <translation>较浅肤色</translation>
    </message>
    <message>
        <source>medium-light skin tone</source>
        <translation>中等-浅肤色</translation>
    </message>
    <message>
        <source>medium skin tone</source>
        <translation>中等肤色</translation>
    </message>
    <message>
        <source>medium-dark skin tone</source>
        <translation>中等-深肤色</translation>
    </message>
    <message>
        <source>dark skin tone</source>
        <translation>较深肤色</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PopupListAccessible</name>
    <message>
        <source>Emoji and snippets</source>
        <translation>表情符号和片段</translation>
    </message>
    <message>
        <source>Skin tones</source>
        <translation>肤色</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::ReleaseNotesView</name>
    <message>
        <source>Release notes</source>
        <translation>发行说明</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::RunningAppsGrid</name>
    <message>
        <source>Add %1</source>
        <translation>添加 %1</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SettingsView</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Snippets</source>
        <translation>片段</translation>
    </message>
    <message>
        <source>Stats</source>
        <translation>统计</translation>
    </message>
    <message>
        <source>Blocked Apps</source>
        <translation>已屏蔽的应用</translation>
    </message>
    <message>
        <source>Paste Mode Apps</source>
        <translation>粘贴模式的应用</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>权限</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SettingsWindow</name>
    <message>
        <source>Tessarin Settings</source>
        <translation>Tessarin 设置</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetEditorView</name>
    <message>
        <source>e.g., ¯\_(ツ)_/¯ or multi-line text</source>
        <translation>例如：¯\_(ツ)_/¯ 或多行文本</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Edit Snippet</source>
        <translation>编辑片段</translation>
    </message>
    <message>
        <source>New Snippet</source>
        <translation>新建片段</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>e.g., Shrug</source>
        <translation>例如：耸肩</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>短代码</translation>
    </message>
    <message>
        <source>e.g., shrug</source>
        <translation>例如：shrug</translation>
    </message>
    <message>
        <source>Keywords (comma-separated)</source>
        <translation>关键词（以英文逗号分隔）</translation>
    </message>
    <message>
        <source>e.g., whatever, idk</source>
        <translation>例如：无所谓, 不知道</translation>
    </message>
    <message>
        <source>Replacement</source>
        <translation>替换文本</translation>
    </message>
    <message>
        <source>Available variables: {{date}}, {{time}}, {{datetime}}, {{clipboard}}</source>
        <translation>可用变量：{{date}}、{{time}}、{{datetime}}、{{clipboard}}</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetFileDialogs</name>
    <message>
        <source>Import Snippets</source>
        <translation>导入片段</translation>
    </message>
    <message>
        <source>Export Snippets</source>
        <translation>导出片段</translation>
    </message>
    <message>
        <source>Snippets</source>
        <translation>片段</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>所有文件</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetListModel</name>
    <message>
        <source>%1, %2, %3</source>
        <extracomment>A list row, as it is read out: trigger, name, text inserted</extracomment>
        <translation>%1，%2，%3</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetListView</name>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Custom Snippets</source>
        <translation>自定义片段</translation>
    </message>
    <message>
        <source>Edit %1</source>
        <translation>编辑 %1</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>删除 %1</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetsSettingsTab</name>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Custom Snippets</source>
        <translation>自定义片段</translation>
    </message>
    <message>
        <source>No custom snippets yet</source>
        <translation>还没有自定义片段</translation>
    </message>
    <message>
        <source>Built-in emojis: %1</source>
        <translation>内置表情符号：%1</translation>
    </message>
    <message>
        <source>Import failed: %1</source>
        <translation>导入失败：%1</translation>
    </message>
    <message>
        <source>Imported 1 snippet</source>
        <translation>已导入 1 个片段</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n snippets</source>
        <translation>
            <numerusform>已导入 %n 个片段</numerusform>
        </translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>导出失败：%1</translation>
    </message>
    <message>
        <source>Also of espanso or AutoKey, or a table (CSV). Files and folders can be dropped here.</source>
        <translation>也支持 espanso、AutoKey 或表格（CSV）。文件和文件夹可以拖放到此处。</translation>
    </message>
    <message>
        <source>Import Snippets</source>
        <translation>导入片段</translation>
    </message>
    <message>
        <source>Left out: %1. Changed: %2.</source>
        <translation>已略过：%1。已更改：%2。</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::StatCard</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::StatsSettingsTab</name>
    <message>
        <source>Total Expansions</source>
        <translation>替换总数</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Usage Statistics</source>
        <translation>使用统计</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>最近 7 天</translation>
    </message>
    <message>
        <source>No usage data yet</source>
        <translation>还没有使用数据</translation>
    </message>
    <message>
        <source>Most Used</source>
        <translation>最常使用</translation>
    </message>
    <message>
        <source>No snippets used yet</source>
        <translation>还没有使用过片段</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::StepIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>第 %1 步，共 %2 步</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::TrustPrompt</name>
    <message>
        <source>Allow Tessarin to expand shortcodes?</source>
        <translation>允许 Tessarin 替换短代码吗？</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>允许</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>暂不</translation>
    </message>
    <message>
        <source>After you type the trigger character, Tessarin judges the keys that follow, shows matches beside the caret and replaces the shortcode in the application you are typing in. While idle it sees no key but the trigger. Of what you type, nothing is kept but how often each entry was used.

Saying yes also switches the session&apos;s accessibility on, for later sessions too. Qt applications and browsers that are open now notice it when they are started again; until then, text is pasted there.</source>
        <translation>输入触发字符后，Tessarin 会判断随后的按键，在光标旁显示匹配项，并在您正在输入的应用中替换短代码。空闲时，除触发字符外，它看不到任何按键。对于您输入的内容，只会保存每个条目的使用次数。

如果允许，还会开启会话的辅助功能，对以后的会话也有效。已打开的 Qt 应用和浏览器重新启动后才会生效；在此之前，文本会以粘贴方式输入。</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::UpdateDialog</name>
    <message>
        <source>Tessarin Update</source>
        <translation>Tessarin 更新</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::UpdateFoundDialog</name>
    <message>
        <source>A new version of Tessarin is available</source>
        <translation>Tessarin 有新版本可用</translation>
    </message>
    <message>
        <source>Tessarin %1 can be downloaded now. This is version %2.</source>
        <translation>现在可以下载 Tessarin %1。当前版本为 %2。</translation>
    </message>
    <message>
        <source>What has changed:</source>
        <translation>更新内容：</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>跳过此版本</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>稍后提醒</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>下载…</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::UpdateWindows</name>
    <message>
        <source>The update server cannot be reached. Is this computer connected to the network?</source>
        <translation>无法连接更新服务器。此计算机是否已连接到网络？</translation>
    </message>
    <message>
        <source>The update server took too long to answer.</source>
        <translation>更新服务器的响应时间过长。</translation>
    </message>
    <message>
        <source>The update server cannot be trusted, as its certificate is not in order.</source>
        <translation>更新服务器的证书有问题，不可信任。</translation>
    </message>
    <message>
        <source>Updates are looked for over secure connections only, and the address of the update server does not lead to one.</source>
        <translation>只通过安全连接检查更新，而更新服务器的地址不是安全连接。</translation>
    </message>
    <message>
        <source>The update server leads from one address to another without end.</source>
        <translation>更新服务器无休止地重定向。</translation>
    </message>
    <message>
        <source>The update server does not have the list of updates.</source>
        <translation>更新服务器上没有更新列表。</translation>
    </message>
    <message>
        <source>The update server sent more than a list of updates.</source>
        <translation>更新服务器发送的内容超出了更新列表。</translation>
    </message>
    <message>
        <source>The list of updates cannot be read.</source>
        <translation>无法读取更新列表。</translation>
    </message>
    <message>
        <source>Tessarin is up to date</source>
        <translation>Tessarin 已是最新版本</translation>
    </message>
    <message>
        <source>Version %1 is the newest one there is.</source>
        <translation>版本 %1 已是最新版本。</translation>
    </message>
    <message>
        <source>Tessarin could not look for updates</source>
        <translation>Tessarin 无法检查更新</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::WelcomeStep</name>
    <message>
        <source>Welcome to Tessarin</source>
        <translation>欢迎使用 Tessarin</translation>
    </message>
    <message>
        <source>Type shortcodes anywhere to instantly insert emoji, kaomoji, and custom snippets.</source>
        <translation>在任何地方输入短代码，即可立即插入表情符号、颜文字和自定义片段。</translation>
    </message>
    <message>
        <source>System-wide %1shortcode%1 autocomplete for macOS</source>
        <translation>适用于 macOS 的全系统 %1短代码%1 自动补全</translation>
    </message>
</context>
</TS>
