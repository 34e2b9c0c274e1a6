<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>CommandLine</name>
    <message>
        <source>FILE</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>open the settings, starting the program if need be</source>
        <translation>設定を開く (必要ならプログラムを起動する)</translation>
    </message>
    <message>
        <source>switch expansion off or on in the running program</source>
        <translation>実行中のプログラムで置き換えの無効と有効を切り替える</translation>
    </message>
    <message>
        <source>end the running program</source>
        <translation>実行中のプログラムを終了する</translation>
    </message>
    <message>
        <source>let Tessarin judge keys and write into other applications, and switch the session&apos;s accessibility on</source>
        <translation>Tessarin にキー入力の判定とほかのアプリへの書き込みを許可し、セッションのアクセシビリティを有効にする</translation>
    </message>
    <message>
        <source>take that back</source>
        <translation>その許可を取り消す</translation>
    </message>
    <message>
        <source>add the snippets of a file to your own</source>
        <translation>ファイルのスニペットを自分のスニペットに追加する</translation>
    </message>
    <message>
        <source>write your own snippets into a file</source>
        <translation>自分のスニペットをファイルに書き出す</translation>
    </message>
    <message>
        <source>QUERY</source>
        <translation>検索語</translation>
    </message>
    <message>
        <source>list what the popup would offer, best first</source>
        <translation>ポップアップに表示される候補を上位から一覧表示する</translation>
    </message>
    <message>
        <source>show this text</source>
        <translation>このヘルプを表示する</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>バージョンを表示する</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>数</translation>
    </message>
    <message>
        <source>with --search: list at most so many (8)</source>
        <translation>--search と併用: 一覧表示する最大数 (8)</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>不明なオプション %1</translation>
    </message>
    <message>
        <source>unexpected argument %1</source>
        <translation>予期しない引数 %1</translation>
    </message>
    <message>
        <source>%1 cannot be combined</source>
        <translation>%1 はほかのオプションと組み合わせられません</translation>
    </message>
    <message>
        <source>%1 needs a file</source>
        <translation>%1 にはファイルが必要です</translation>
    </message>
    <message>
        <source>%1 needs a number from 1 on</source>
        <translation>%1 には 1 以上の数が必要です</translation>
    </message>
    <message>
        <source>%1 takes no argument</source>
        <translation>%1 は引数を取りません</translation>
    </message>
    <message>
        <source>%1 needs an argument: %2</source>
        <translation>%1 には引数が必要です: %2</translation>
    </message>
    <message>
        <source>usage: tessarin [OPTION]</source>
        <translation>使い方: tessarin [オプション]</translation>
    </message>
    <message>
        <source>Expands shortcodes such as :smile in any application. Started again without an option, it opens the
settings of the program that runs.</source>
        <translation>:smile のようなショートコードをあらゆるアプリで置き換えます。オプションなしで再び起動すると、
実行中のプログラムの設定を開きます。</translation>
    </message>
    <message>
        <source>TRIGGER</source>
        <translation>ショートコード</translation>
    </message>
    <message>
        <source>list your own snippets</source>
        <translation>自分のスニペットを一覧表示する</translation>
    </message>
    <message>
        <source>TRIGGER TEXT</source>
        <translation>ショートコード テキスト</translation>
    </message>
    <message>
        <source>add a snippet to your own</source>
        <translation>自分のスニペットに追加する</translation>
    </message>
    <message>
        <source>remove your snippets with that trigger</source>
        <translation>そのショートコードの自分のスニペットを削除する</translation>
    </message>
    <message>
        <source>with --list or --search: write a JSON array</source>
        <translation>--list または --search と併用: JSON 配列で出力する</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>with --add: what the popup calls it (the trigger)</source>
        <translation>--add と併用: ポップアップでの名前 (既定はショートコード)</translation>
    </message>
    <message>
        <source>WORDS</source>
        <translation>語句</translation>
    </message>
    <message>
        <source>with --add: further words to find it by, between commas</source>
        <translation>--add と併用: 検索に使うほかの語句 (半角コンマ区切り)</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 には %2 が必要です</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>the running instance does not answer</source>
        <translation>実行中のプログラムが応答しません</translation>
    </message>
    <message>
        <source>Tessarin may judge keys and write into other applications.</source>
        <translation>Tessarin はキー入力を判定し、ほかのアプリに書き込めます。</translation>
    </message>
    <message>
        <source>The session&apos;s accessibility is switched on, for later sessions too. Qt applications and browsers that are open now notice it when they are started again; until then, text is pasted there.</source>
        <translation>セッションのアクセシビリティを有効にしました。次回以降のセッションでも有効です。すでに開いている Qt アプリとブラウザーには再起動後に反映されます。それまで、そこではテキストが貼り付けられます。</translation>
    </message>
    <message>
        <source>The session&apos;s accessibility could not be switched on; text will be pasted.</source>
        <translation>セッションのアクセシビリティを有効にできませんでした。テキストは貼り付けられます。</translation>
    </message>
    <message>
        <source>Tessarin no longer judges keys or writes into other applications.</source>
        <translation>Tessarin はもうキー入力を判定せず、ほかのアプリにも書き込みません。</translation>
    </message>
    <message>
        <source>no instance is running</source>
        <translation>Tessarin は実行されていません</translation>
    </message>
    <message>
        <source>no display to open a window on; try from a desktop session</source>
        <translation>ウィンドウを開くディスプレイがありません。デスクトップセッションから試してください</translation>
    </message>
</context>
<context>
    <name>Importers</name>
    <message>
        <source>its text would be filled in here</source>
        <translation>ここではテキストの一部が置き換えられてしまいます</translation>
    </message>
    <message>
        <source>it places the caret</source>
        <translation>カーソルを移動します</translation>
    </message>
    <message>
        <source>it runs a script</source>
        <translation>スクリプトを実行します</translation>
    </message>
    <message>
        <source>it inserts a file</source>
        <translation>ファイルを挿入します</translation>
    </message>
    <message>
        <source>it presses the key %1</source>
        <translation>%1 キーを押します</translation>
    </message>
    <message>
        <source>it writes a date in another form</source>
        <translation>日付を別の形式で書き込みます</translation>
    </message>
    <message>
        <source>it is a script</source>
        <translation>スクリプトです</translation>
    </message>
    <message>
        <source>it has a hotkey only</source>
        <translation>ショートカットキーしかありません</translation>
    </message>
    <message>
        <source>it has no abbreviation</source>
        <translation>略語がありません</translation>
    </message>
    <message>
        <source>it works in every window here</source>
        <translation>ここではすべてのウィンドウで有効です</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>%1 行目</translation>
    </message>
    <message>
        <source>it has more than four columns; a text with separators needs quotes</source>
        <translation>列が 5 つ以上あります。区切り文字を含むテキストは引用符で囲む必要があります</translation>
    </message>
    <message>
        <source>it has a regular expression</source>
        <translation>正規表現を使っています</translation>
    </message>
    <message>
        <source>it asks by a form</source>
        <translation>フォームで入力を求めます</translation>
    </message>
    <message>
        <source>it inserts an image</source>
        <translation>画像を挿入します</translation>
    </message>
    <message>
        <source>its text is formatted</source>
        <translation>テキストに書式があります</translation>
    </message>
    <message>
        <source>it is not a match</source>
        <translation>スニペットではありません</translation>
    </message>
    <message>
        <source>it has no trigger</source>
        <translation>ショートコードがありません</translation>
    </message>
    <message>
        <source>it uses %1, which is not among its variables</source>
        <translation>%1 を使っていますが、その変数はありません</translation>
    </message>
    <message>
        <source>it has a variable of the kind %1</source>
        <translation>種類が %1 の変数を使っています</translation>
    </message>
    <message>
        <source>its text does not follow the case of what is typed</source>
        <translation>テキストの大文字と小文字は入力に合わせて変わりません</translation>
    </message>
    <message>
        <source>its trigger is too long to type</source>
        <translation>ショートコードが長すぎて入力できません</translation>
    </message>
    <message>
        <source>nothing of its trigger can be part of a shortcode</source>
        <translation>ショートコードにトリガー文字のあとに入力できる文字がありません</translation>
    </message>
    <message>
        <source>it has no text</source>
        <translation>テキストがありません</translation>
    </message>
    <message>
        <source>its trigger is now %1</source>
        <translation>ショートコードを %1 に変更しました</translation>
    </message>
    <message numerus="yes">
        <source>Left out: %n</source>
        <translation>
            <numerusform>除外: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Changed: %n</source>
        <translation>
            <numerusform>変更: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>the folder holds nothing that can be imported</source>
        <translation>フォルダーにインポートできるものがありません</translation>
    </message>
    <message>
        <source>the folder cannot be read</source>
        <translation>フォルダーを読み込めません</translation>
    </message>
    <message>
        <source>the file holds no matches</source>
        <translation>ファイルにスニペットがありません</translation>
    </message>
    <message>
        <source>this kind of file cannot be imported</source>
        <translation>この種類のファイルはインポートできません</translation>
    </message>
</context>
<context>
    <name>InputMonitoringHelp</name>
    <message>
        <source>Tessarin can judge keys on this session.</source>
        <translation>Tessarin はこのセッションでキー入力を判定できます。</translation>
    </message>
    <message>
        <source>Tessarin cannot judge keys on this session.</source>
        <translation>Tessarin はこのセッションでキー入力を判定できません。</translation>
    </message>
    <message>
        <source>Nothing is missing.</source>
        <translation>不足しているものはありません。</translation>
    </message>
    <message>
        <source>This is a Wayland session, in which a program sees only the keys typed into its own windows. Choose an X11 session (often called “Xorg”) when you log in, and shortcodes expand everywhere.</source>
        <translation>これは Wayland セッションです。プログラムには自分のウィンドウに入力されたキーしか見えません。ログイン時に X11 セッション (多くの場合 “Xorg” と表示されます) を選択すると、どこでもショートコードが置き換えられます。</translation>
    </message>
    <message>
        <source>No X server answers. Start Tessarin from an X11 desktop session.</source>
        <translation>X サーバーが応答しません。X11 のデスクトップセッションから Tessarin を起動してください。</translation>
    </message>
    <message>
        <source>The X server lacks one of the extensions XInput 2.2, XTest and XKB. Every current X server has them; remote and nested ones may have to be updated or started with them switched on.</source>
        <translation>X サーバーに XInput 2.2、XTest、XKB のいずれかの拡張機能がありません。現在の X サーバーはすべて備えていますが、リモートや入れ子の X サーバーでは、更新するか、拡張機能を有効にして起動する必要があるかもしれません。</translation>
    </message>
    <message>
        <source>Until then no shortcode expands and no popup appears. The tray menu, the settings, your snippets, import and export, and the command line work.</source>
        <translation>それまではショートコードは置き換えられず、ポップアップも表示されません。トレイのメニュー、設定、自分のスニペット、インポートとエクスポート、コマンドラインは使えます。</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Check for Updates...</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>権限</translation>
    </message>
    <message>
        <source>Quit Tessarin</source>
        <translation>Tessarin を終了</translation>
    </message>
    <message>
        <source>Disable Tessarin</source>
        <translation>Tessarin を無効にする</translation>
    </message>
    <message>
        <source>Enable Tessarin</source>
        <translation>Tessarin を有効にする</translation>
    </message>
    <message>
        <source>  Input Monitoring: ✓</source>
        <translation>  入力の監視: ✓</translation>
    </message>
    <message>
        <source>  Input Monitoring: ✗</source>
        <translation>  入力の監視: ✗</translation>
    </message>
    <message>
        <source>  Accessibility: ✓</source>
        <translation>  アクセシビリティ: ✓</translation>
    </message>
    <message>
        <source>  Accessibility: ✗ (optional)</source>
        <translation>  アクセシビリティ: ✗ (任意)</translation>
    </message>
</context>
<context>
    <name>Popup</name>
    <message>
        <source>navigate</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>select</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>confirm</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>skin tone</source>
        <translation>肌の色</translation>
    </message>
    <message>
        <source>1 match</source>
        <translation>1 件一致</translation>
    </message>
    <message>
        <source>No matches</source>
        <translation>一致なし</translation>
    </message>
    <message numerus="yes">
        <source>%n matches</source>
        <translation>
            <numerusform>%n 件一致</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>unknown request</source>
        <translation>不明な要求</translation>
    </message>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>quitting</source>
        <translation>終了します</translation>
    </message>
    <message>
        <source>no settings window</source>
        <translation>設定ウィンドウがありません</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>設定</translation>
    </message>
</context>
<context>
    <name>SnippetCommands</name>
    <message>
        <source>Imported 1 snippet</source>
        <translation>1 個のスニペットをインポートしました</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n snippets</source>
        <translation>
            <numerusform>%n 個のスニペットをインポートしました</numerusform>
        </translation>
    </message>
    <message>
        <source>Import failed: %1</source>
        <translation>インポートに失敗しました: %1</translation>
    </message>
    <message>
        <source>Exported 1 snippet</source>
        <translation>1 個のスニペットをエクスポートしました</translation>
    </message>
    <message numerus="yes">
        <source>Exported %n snippets</source>
        <translation>
            <numerusform>%n 個のスニペットをエクスポートしました</numerusform>
        </translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>エクスポートに失敗しました: %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>保存していません: %1</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>テキストが UTF-8 ではありません</translation>
    </message>
    <message>
        <source>a trigger has letters, digits, _ and - only</source>
        <translation>ショートコードに使えるのは文字、数字、_、- だけです</translation>
    </message>
    <message>
        <source>a snippet needs a text</source>
        <translation>スニペットにはテキストが必要です</translation>
    </message>
    <message>
        <source>there is a snippet with the trigger %1 already</source>
        <translation>ショートコード %1 のスニペットはすでにあります</translation>
    </message>
    <message>
        <source>Added 1 snippet</source>
        <translation>1 個のスニペットを追加しました</translation>
    </message>
    <message>
        <source>no snippet of yours has the trigger %1</source>
        <translation>ショートコード %1 の自分のスニペットはありません</translation>
    </message>
    <message>
        <source>Removed 1 snippet</source>
        <translation>1 個のスニペットを削除しました</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n snippets</source>
        <translation>
            <numerusform>%n 個のスニペットを削除しました</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SnippetStore</name>
    <message>
        <source>your snippets could not be read when Tessarin started: %1</source>
        <translation>Tessarin の起動時に自分のスニペットを読み込めませんでした: %1</translation>
    </message>
</context>
<context>
    <name>SparkleUpdaterService</name>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::AppListSettingsTab</name>
    <message>
        <source>Add from running apps</source>
        <translation>実行中のアプリから追加</translation>
    </message>
    <message>
        <source>Bundle ID</source>
        <translation>識別子</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::AppListView</name>
    <message>
        <source>Remove %1</source>
        <translation>%1 を削除</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::BarChart</name>
    <message>
        <source>%1: %2, %3: %4</source>
        <translation>%1: %2、%3: %4</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>回数</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::BlockedAppsSettingsTab</name>
    <message>
        <source>Blocked Apps</source>
        <translation>ブロックするアプリ</translation>
    </message>
    <message>
        <source>Tessarin is disabled in these apps. Apps with their own emoji picker (like Slack) are blocked by default.</source>
        <translation>これらのアプリでは Tessarin は無効です。独自の絵文字ピッカーがあるアプリ (Slack など) は最初からブロックされています。</translation>
    </message>
    <message>
        <source>e.g., com.tinyspeck.slackmacgap</source>
        <translation>例: com.tinyspeck.slackmacgap</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::CheckingDialog</name>
    <message>
        <source>Looking for updates…</source>
        <translation>アップデートを確認しています…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::DoneStep</name>
    <message>
        <source>You&apos;re All Set!</source>
        <translation>準備が完了しました！</translation>
    </message>
    <message>
        <source>Tessarin runs in your menu bar. Look for the keyboard icon to access settings, manage snippets, and more.</source>
        <translation>Tessarin はシステムトレイで動作します。キーボードのアイコンから設定やスニペットの管理などを利用できます。</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::ExerciseStep</name>
    <message>
        <source>Try It Out</source>
        <translation>試してみましょう</translation>
    </message>
    <message>
        <source>Try it here</source>
        <translation>ここで試せます</translation>
    </message>
    <message>
        <source>Type the trigger character to start</source>
        <translation>最初にトリガー文字を入力します</translation>
    </message>
    <message>
        <source>Type a shortcode like &quot;smile&quot; or &quot;wave&quot;</source>
        <translation>“smile” や “wave” などのショートコードを入力します</translation>
    </message>
    <message>
        <source>Press Enter or type the trigger again to confirm</source>
        <translation>Enter キーか、もう一度トリガー文字を押して確定します</translation>
    </message>
    <message>
        <source>Type %1smile%1 in any text field</source>
        <translation>どこかの入力欄で %1smile%1 と入力してみましょう</translation>
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
        <translation>ログイン時に起動する</translation>
    </message>
    <message>
        <source>Show menu bar icon</source>
        <translation>システムトレイにアイコンを表示する</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>起動</translation>
    </message>
    <message>
        <source>Trigger Character</source>
        <translation>トリガー文字</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Character %1</source>
        <translation>文字 %1</translation>
    </message>
    <message>
        <source>Version %1 (%2)</source>
        <translation>バージョン %1 (%2)</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Type %1shortcode%1 to trigger autocomplete</source>
        <translation>%1ショートコード%1 と入力すると候補が表示されます</translation>
    </message>
    <message>
        <source>System-wide %1shortcode%1 autocomplete for macOS</source>
        <translation>システム全体で使える macOS 向けの %1ショートコード%1 自動補完</translation>
    </message>
    <message>
        <source>Leave Return and Tab alone where a shortcode is unlikely</source>
        <translation>ショートコードらしくない場所では Enter キーと Tab キーを横取りしない</translation>
    </message>
    <message>
        <source>Only at the start of a word</source>
        <translation>単語の先頭のみ</translation>
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
        <translation>%1. %2、%3</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::OnboardingView</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>始める</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::OnboardingWindow</name>
    <message>
        <source>Welcome to Tessarin</source>
        <translation>Tessarin へようこそ</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PasteFallbackAppsSettingsTab</name>
    <message>
        <source>Paste Mode Apps</source>
        <translation>貼り付けモードのアプリ</translation>
    </message>
    <message>
        <source>These apps use clipboard paste instead of direct text insertion. Terminal emulators, web browsers, and other apps where direct insertion doesn&apos;t work should be listed here.</source>
        <translation>これらのアプリでは、テキストを直接挿入せず、クリップボードから貼り付けます。端末エミュレーターやウェブブラウザーなど、直接挿入が機能しないアプリをここに追加してください。</translation>
    </message>
    <message>
        <source>e.g., com.example.terminal</source>
        <translation>例: com.example.terminal</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PermissionRow</name>
    <message>
        <source>Grant</source>
        <translation>許可</translation>
    </message>
    <message>
        <source>%1: granted</source>
        <translation>%1: 許可済み</translation>
    </message>
    <message>
        <source>%1: not granted</source>
        <translation>%1: 未許可</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PermissionsSettingsTab</name>
    <message>
        <source>Input Monitoring</source>
        <translation>入力の監視</translation>
    </message>
    <message>
        <source>Required — captures keystrokes to detect :shortcodes:</source>
        <translation>必須 — キー入力を判定して :ショートコード: を検出します</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>アクセシビリティ</translation>
    </message>
    <message>
        <source>Optional — enables cursor positioning and direct text insertion</source>
        <translation>任意 — カーソル位置での候補の表示とテキストの直接挿入に使います</translation>
    </message>
    <message>
        <source>Without Accessibility, Tessarin uses clipboard paste as a fallback. The popup will appear near the mouse cursor instead of the text caret.</source>
        <translation>アクセシビリティがない場合、Tessarin はクリップボードから貼り付けます。ポップアップはテキストカーソルではなくマウスポインターの近くに表示されます。</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PermissionsStep</name>
    <message>
        <source>Grant Permissions</source>
        <translation>権限を許可</translation>
    </message>
    <message>
        <source>Tessarin needs two permissions to work:</source>
        <translation>Tessarin には 2 つの権限が必要です:</translation>
    </message>
    <message>
        <source>Input Monitoring</source>
        <translation>入力の監視</translation>
    </message>
    <message>
        <source>Detects when you type shortcodes</source>
        <translation>ショートコードの入力を検出します</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>アクセシビリティ</translation>
    </message>
    <message>
        <source>Positions the popup and inserts text</source>
        <translation>ポップアップの位置決めとテキストの挿入に使います</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PopupAccessible</name>
    <message>
        <source>%1, %2 of %3</source>
        <translation>%1、%3 件中 %2 件目</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PopupItemAccessible</name>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>no skin tone</source>
        <translation>肌の色なし</translation>
    </message>
    <message>
        <source>light skin tone</source>
        <translation>薄い肌色</translation>
    </message>
    <message>
        <source>medium-light skin tone</source>
        <translation>やや薄い肌色</translation>
    </message>
    <message>
        <source>medium skin tone</source>
        <translation>中間の肌色</translation>
    </message>
    <message>
        <source>medium-dark skin tone</source>
        <translation>やや濃い肌色</translation>
    </message>
    <message>
        <source>dark skin tone</source>
        <translation>濃い肌色</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::PopupListAccessible</name>
    <message>
        <source>Emoji and snippets</source>
        <translation>絵文字とスニペット</translation>
    </message>
    <message>
        <source>Skin tones</source>
        <translation>肌の色</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::ReleaseNotesView</name>
    <message>
        <source>Release notes</source>
        <translation>リリースノート</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::RunningAppsGrid</name>
    <message>
        <source>Add %1</source>
        <translation>%1 を追加</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SettingsView</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Snippets</source>
        <translation>スニペット</translation>
    </message>
    <message>
        <source>Stats</source>
        <translation>統計</translation>
    </message>
    <message>
        <source>Blocked Apps</source>
        <translation>ブロックするアプリ</translation>
    </message>
    <message>
        <source>Paste Mode Apps</source>
        <translation>貼り付けモードのアプリ</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>権限</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SettingsWindow</name>
    <message>
        <source>Tessarin Settings</source>
        <translation>Tessarin の設定</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetEditorView</name>
    <message>
        <source>e.g., ¯\_(ツ)_/¯ or multi-line text</source>
        <translation>例: ¯\_(ツ)_/¯ や複数行のテキスト</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Edit Snippet</source>
        <translation>スニペットを編集</translation>
    </message>
    <message>
        <source>New Snippet</source>
        <translation>新しいスニペット</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>e.g., Shrug</source>
        <translation>例: 肩をすくめる</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>ショートコード</translation>
    </message>
    <message>
        <source>e.g., shrug</source>
        <translation>例: shrug</translation>
    </message>
    <message>
        <source>Keywords (comma-separated)</source>
        <translation>キーワード (半角コンマ区切り)</translation>
    </message>
    <message>
        <source>e.g., whatever, idk</source>
        <translation>例: さあね, 知らない</translation>
    </message>
    <message>
        <source>Replacement</source>
        <translation>置き換え後のテキスト</translation>
    </message>
    <message>
        <source>Available variables: {{date}}, {{time}}, {{datetime}}, {{clipboard}}</source>
        <translation>使える変数: {{date}}、{{time}}、{{datetime}}、{{clipboard}}</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetFileDialogs</name>
    <message>
        <source>Import Snippets</source>
        <translation>スニペットをインポート</translation>
    </message>
    <message>
        <source>Export Snippets</source>
        <translation>スニペットをエクスポート</translation>
    </message>
    <message>
        <source>Snippets</source>
        <translation>スニペット</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>すべてのファイル</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetListModel</name>
    <message>
        <source>%1, %2, %3</source>
        <extracomment>A list row, as it is read out: trigger, name, text inserted</extracomment>
        <translation>%1、%2、%3</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetListView</name>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Custom Snippets</source>
        <translation>カスタムスニペット</translation>
    </message>
    <message>
        <source>Edit %1</source>
        <translation>%1 を編集</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 を削除</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::SnippetsSettingsTab</name>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Custom Snippets</source>
        <translation>カスタムスニペット</translation>
    </message>
    <message>
        <source>No custom snippets yet</source>
        <translation>カスタムスニペットはまだありません</translation>
    </message>
    <message>
        <source>Built-in emojis: %1</source>
        <translation>内蔵の絵文字: %1</translation>
    </message>
    <message>
        <source>Import failed: %1</source>
        <translation>インポートに失敗しました: %1</translation>
    </message>
    <message>
        <source>Imported 1 snippet</source>
        <translation>1 個のスニペットをインポートしました</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n snippets</source>
        <translation>
            <numerusform>%n 個のスニペットをインポートしました</numerusform>
        </translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>エクスポートに失敗しました: %1</translation>
    </message>
    <message>
        <source>Also of espanso or AutoKey, or a table (CSV). Files and folders can be dropped here.</source>
        <translation>espanso、AutoKey、表 (CSV) も使えます。ファイルやフォルダーをここにドロップできます。</translation>
    </message>
    <message>
        <source>Import Snippets</source>
        <translation>スニペットをインポート</translation>
    </message>
    <message>
        <source>Left out: %1. Changed: %2.</source>
        <translation>除外: %1。変更: %2。</translation>
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
        <translation>置き換えの合計</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>Usage Statistics</source>
        <translation>使用統計</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>過去 7 日間</translation>
    </message>
    <message>
        <source>No usage data yet</source>
        <translation>使用データはまだありません</translation>
    </message>
    <message>
        <source>Most Used</source>
        <translation>よく使うもの</translation>
    </message>
    <message>
        <source>No snippets used yet</source>
        <translation>使用したスニペットはまだありません</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::StepIndicator</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>ステップ %1 / %2</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::TrustPrompt</name>
    <message>
        <source>Allow Tessarin to expand shortcodes?</source>
        <translation>Tessarin にショートコードの置き換えを許可しますか？</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>許可</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>今はしない</translation>
    </message>
    <message>
        <source>After you type the trigger character, Tessarin judges the keys that follow, shows matches beside the caret and replaces the shortcode in the application you are typing in. While idle it sees no key but the trigger. Of what you type, nothing is kept but how often each entry was used.

Saying yes also switches the session&apos;s accessibility on, for later sessions too. Qt applications and browsers that are open now notice it when they are started again; until then, text is pasted there.</source>
        <translation>トリガー文字が入力されると、Tessarin はそれに続くキー入力を判定し、カーソルの近くに候補を表示して、入力中のアプリのショートコードを置き換えます。待機中は、トリガー文字以外のキーは Tessarin には見えません。入力した内容のうち、保存されるのは各項目の使用回数だけです。

許可すると、セッションのアクセシビリティも有効になります。次回以降のセッションでも有効です。すでに開いている Qt アプリとブラウザーには再起動後に反映されます。それまで、そこではテキストが貼り付けられます。</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::UpdateDialog</name>
    <message>
        <source>Tessarin Update</source>
        <translation>Tessarin のアップデート</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::UpdateFoundDialog</name>
    <message>
        <source>A new version of Tessarin is available</source>
        <translation>Tessarin の新しいバージョンが利用可能です</translation>
    </message>
    <message>
        <source>Tessarin %1 can be downloaded now. This is version %2.</source>
        <translation>Tessarin %1 をダウンロードできます。現在のバージョンは %2 です。</translation>
    </message>
    <message>
        <source>What has changed:</source>
        <translation>変更点:</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>このバージョンをスキップ</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>後で通知</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>ダウンロード…</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::UpdateWindows</name>
    <message>
        <source>The update server cannot be reached. Is this computer connected to the network?</source>
        <translation>アップデートサーバーに接続できません。このコンピューターはネットワークに接続されていますか？</translation>
    </message>
    <message>
        <source>The update server took too long to answer.</source>
        <translation>アップデートサーバーの応答に時間がかかりすぎました。</translation>
    </message>
    <message>
        <source>The update server cannot be trusted, as its certificate is not in order.</source>
        <translation>アップデートサーバーの証明書に問題があるため、信頼できません。</translation>
    </message>
    <message>
        <source>Updates are looked for over secure connections only, and the address of the update server does not lead to one.</source>
        <translation>アップデートは安全な接続でのみ確認されますが、アップデートサーバーのアドレスは安全な接続ではありません。</translation>
    </message>
    <message>
        <source>The update server leads from one address to another without end.</source>
        <translation>アップデートサーバーのリダイレクトが終わりません。</translation>
    </message>
    <message>
        <source>The update server does not have the list of updates.</source>
        <translation>アップデートサーバーにアップデートの一覧がありません。</translation>
    </message>
    <message>
        <source>The update server sent more than a list of updates.</source>
        <translation>アップデートサーバーから送られたデータは、アップデートの一覧としては大きすぎます。</translation>
    </message>
    <message>
        <source>The list of updates cannot be read.</source>
        <translation>アップデートの一覧を読み込めません。</translation>
    </message>
    <message>
        <source>Tessarin is up to date</source>
        <translation>Tessarin は最新です</translation>
    </message>
    <message>
        <source>Version %1 is the newest one there is.</source>
        <translation>バージョン %1 が最新です。</translation>
    </message>
    <message>
        <source>Tessarin could not look for updates</source>
        <translation>Tessarin はアップデートを確認できませんでした</translation>
    </message>
</context>
<context>
    <name>tessarin::ui::WelcomeStep</name>
    <message>
        <source>Welcome to Tessarin</source>
        <translation>Tessarin へようこそ</translation>
    </message>
    <message>
        <source>Type shortcodes anywhere to instantly insert emoji, kaomoji, and custom snippets.</source>
        <translation>どこでもショートコードを入力するだけで、絵文字、顔文字、自分のスニペットをすぐに挿入できます。</translation>
    </message>
    <message>
        <source>System-wide %1shortcode%1 autocomplete for macOS</source>
        <translation>システム全体で使える macOS 向けの %1ショートコード%1 自動補完</translation>
    </message>
</context>
</TS>
