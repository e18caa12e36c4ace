<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi_IN" sourcelanguage="en">
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>ठीक है</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>बंद करें</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>हाँ (&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>नहीं (&amp;N)</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>विवरण दिखाएँ…</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>विवरण छिपाएँ…</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>उपयोग: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[विकल्प]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>विकल्प:</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>अज्ञात विकल्प &apos;%1&apos;।</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>अज्ञात विकल्प: %1।</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>&apos;%1&apos; के बाद मान नहीं है।</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>&apos;%1&apos; के बाद अप्रत्याशित मान है।</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>पूर्ववत करें (&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>फिर से करें (&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>काटें (&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>कॉपी करें (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>चिपकाएँ (&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>हटाएँ</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>सभी चुनें</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>पूर्ववत करें (&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>फिर से करें (&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>काटें (&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>कॉपी करें (&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>लिंक का पता कॉपी करें (&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>चिपकाएँ (&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>हटाएँ</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>सभी चुनें</translation>
    </message>
</context>
</TS>
