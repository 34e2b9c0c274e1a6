<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Menu</name>
    <message>
        <source>Check for Updates...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Tessarin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable Tessarin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable Tessarin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Input Monitoring: ✓</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Input Monitoring: ✗</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Accessibility: ✓</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Accessibility: ✗ (optional)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Popup</name>
    <message>
        <source>navigate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>confirm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>skin tone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 match</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No matches</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessarin::ui::TrustPrompt</name>
    <message>
        <source>Allow Tessarin to expand shortcodes?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After you type the trigger character, Tessarin judges the keys that follow, shows matches beside the caret and replaces the shortcode in the application you are typing in. While idle it sees no key but the trigger. Of what you type, nothing is kept but how often each entry was used.

Saying yes also switches the session&apos;s accessibility on; applications that are open now may have to be started again before text can be replaced directly in them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
