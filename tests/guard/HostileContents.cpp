// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "HostileContents.h"

namespace
{
const LinkFile::Condition Good = LinkFile::Good;
const LinkFile::Condition Empty = LinkFile::Empty;
const LinkFile::Condition Damaged = LinkFile::Damaged;
const LinkFile::Condition TooLarge = LinkFile::TooLarge;

QByteArray item(const QByteArray& name, const QByteArray& more = QByteArray())
{
    return "<item id=\"0\" name=\"" + name +
           "\" type=\"IDS_LINK_TYPE_INTERNET\" url=\"http://a.example.org/\" para=\"\" startconnect=\"0\""
           " startmobile=\"0\" delete=\"1\" edit=\"1\" visible=\"1\"" +
           more + "/>\n";
}

QByteArray body(const QByteArray& items)
{
    return "<tovadoc type=\"config\">\n<function><Visible>1</Visible><CurrentID>2</CurrentID></function>\n"
           "<menu parent=\"quicklink\">\n" +
           items + "</menu>\n</tovadoc>\n";
}

QByteArray declared(const QByteArray& encoding, const QByteArray& rest)
{
    return "<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>\n" + rest;
}

QByteArray document(const QByteArray& items)
{
    return declared("UTF-8", body(items));
}

QByteArray two()
{
    return document(item("A") + item("B"));
}

/** Each byte as a unit of so many bytes, the value in the last of them, or in the first. */
QByteArray widened(const QByteArray& ascii, int bytes, bool isLastFirst)
{
    QByteArray wide;
    for (const char c : ascii) {
        const QByteArray zeros(bytes - 1, '\0');
        wide += isLastFirst ? c + zeros : zeros + c;
    }
    return wide;
}

QByteArray withEntities(const QByteArray& declarations, const QByteArray& name)
{
    return "<?xml version=\"1.0\"?>\n<!DOCTYPE tovadoc [" + declarations + "]>\n" + body(item(name));
}

QByteArray repeated(const QByteArray& text, int times)
{
    QByteArray whole;
    for (int i = 0; i < times; ++i)
        whole += text;
    return whole;
}

/** Ten of the entity before in each: a text of a thousand million letters. */
QByteArray laughs()
{
    QByteArray declarations = "<!ENTITY e0 \"lollollol\">";
    for (int i = 1; i < 10; ++i) {
        const QByteArray before = "&e" + QByteArray::number(i - 1) + ';';
        declarations += "<!ENTITY e" + QByteArray::number(i) + " \"" + repeated(before, 10) + "\">";
    }
    return declarations;
}
} // namespace

QList<HostileContent> HostileContent::encodings()
{
    const QByteArray mark = "\xef\xbb\xbf";
    const QByteArray latin = item("Caf\xe9");
    const QByteArray utf16 = declared("UTF-16", body(item("A") + item("B")));
    return {
        {"UTF-8", two(), Good, 2},
        {"UTF-8 with a byte order mark", mark + two(), Good, 2},
        {"two byte order marks", mark + mark + two(), Damaged, 0},
        {"only a byte order mark", mark, Damaged, 0},
        {"a byte order mark in the middle of a name", document(item("A" + mark + "B")), Good, 1},
        {"ISO-8859-1, declared", declared("ISO-8859-1", body(latin)), Good, 1},
        {"ISO-8859-1, not declared", document(latin), Damaged, 0},
        {"windows-1252, declared", declared("windows-1252", body(item("\x80\x93"))), Good, 1},
        {"UTF-8 that says it is ISO-8859-1", declared("ISO-8859-1", body(item("Caf\xc3\xa9"))), Good, 1},
        {"an encoding that nobody knows", declared("x-none-such", body(item("A"))), Damaged, 0},
        {"an encoding with a number in front", declared("8-UTF", body(item("A"))), Damaged, 0},
        {"an empty encoding", declared("", body(item("A"))), Damaged, 0},
        {"UTF-16, low byte first", "\xff\xfe" + widened(utf16, 2, true), Good, 2},
        {"UTF-16, high byte first", "\xfe\xff" + widened(utf16, 2, false), Good, 2},
        {"UTF-16 without a mark", widened(utf16, 2, true), Good, 2},
        {"UTF-16 with the mark of the other", "\xfe\xff" + widened(utf16, 2, true), Damaged, 0},
        {"UTF-16 with carriage returns", "\xff\xfe" + widened(QByteArray(utf16).replace('\n', "\r\n"), 2, true),
         Damaged, 0},
        {"UTF-16 that ends in half a unit", ("\xff\xfe" + widened(utf16, 2, true)).chopped(1), Good, 2},
        {"UTF-32", QByteArray("\xff\xfe\0\0", 4) + widened(declared("UTF-32", body(item("A"))), 4, true), Good, 1},
        {"UTF-7", declared("UTF-7", body(item("A"))), Good, 1},
        {"EBCDIC", QByteArray("\x4c\x6f\xa7\x94\x93"), Damaged, 0},
        {"a byte that begins no character", document(item("A\xff")), Damaged, 0},
        {"a character cut off", document(item("A\xe2\x82")), Damaged, 0},
        {"a character that is too long", document(item("\xc0\xaf")), Damaged, 0},
        {"a character beyond Unicode", document(item("\xf5\x80\x80\x80")), Damaged, 0},
        {"half a surrogate pair in UTF-8", document(item("\xed\xa0\xbd")), Damaged, 0},
        {"an emoji", document(item("\xf0\x9f\x94\x97")), Good, 1},
        {"NUL in a name", document(item(QByteArray("A\0B", 3))), Damaged, 0},
        {"NUL between elements", document(item("A") + QByteArray(1, '\0') + item("B")), Damaged, 1},
        {"a control character", document(item("\x01")), Damaged, 0},
        {"U+FFFE", document(item("\xef\xbf\xbe")), Damaged, 0},
        {"U+FFFF", document(item("\xef\xbf\xbf")), Damaged, 0},
        {"a delete character", document(item("\x7f")), Good, 1},
        {"line ends of Windows", QByteArray(two()).replace('\n', "\r\n"), Good, 2},
        {"line ends of old Macs", QByteArray(two()).replace('\n', '\r'), Good, 2},
        {"text from right to left",
         document(item("\xe2\x80\xae"
                       "cod.exe")),
         Good, 1},
    };
}

QList<HostileContent> HostileContent::cuts()
{
    const QByteArray whole = two();
    QList<HostileContent> contents = {
        {"nothing", "", Empty, 0},
        {"blanks", " \t\n\n", Empty, 0},
        {"one letter", "<", Damaged, 0},
        {"only the declaration", "<?xml version=\"1.0\"?>", Damaged, 0},
        {"half the declaration", "<?xml vers", Damaged, 0},
        {"cut behind the root", whole.left(whole.indexOf("<function>")), Damaged, 0},
        {"cut in the counter", whole.left(whole.indexOf("</CurrentID>")), Damaged, 0},
        {"cut behind the menu", whole.left(whole.indexOf("<item")), Damaged, 0},
        {"cut in the first link", whole.left(whole.indexOf("url=")), Damaged, 0},
        {"cut behind the first link", whole.left(whole.indexOf("\n<item id=\"0\" name=\"B\"")), Damaged, 1},
        {"cut in the second link", whole.left(whole.indexOf("B\" type")), Damaged, 1},
        {"cut before the menu's end", whole.left(whole.indexOf("</menu>")), Damaged, 2},
        {"cut before the root's end", whole.left(whole.indexOf("</tovadoc>")), Damaged, 2},
        {"cut in the last sign", whole.chopped(2), Damaged, 2},
        {"cut before the last line's end", whole.chopped(1), Good, 2},
        {"the beginning missing", whole.mid(whole.indexOf("<menu")), Damaged, 2},
        {"two files in one", whole + whole, Damaged, 2},
        {"a second root", whole + "<tovadoc/>", Damaged, 2},
        {"text behind the end", whole + "links", Damaged, 2},
        {"zeros behind the end", whole + QByteArray(4096, '\0'), Damaged, 2},
        {"zeros only", QByteArray(4096, '\0'), Damaged, 0},
        {"blanks before the declaration", "  " + whole, Damaged, 0},
        {"no XML", "name=A\nurl=http://a.example.org/\n", Damaged, 0},
        {"a web page", "<!DOCTYPE html><html><body><br>Not found</body></html>", Damaged, 0},
        {"a program",
         QByteArray("\x7f"
                    "ELF\x02\x01\x01\0\0\0",
                    10),
         Damaged, 0},
        {"a compressed file", QByteArray("\x1f\x8b\x08\0\0\0\0\0", 8), Damaged, 0},
    };
    return contents;
}

QList<HostileContent> HostileContent::bombs()
{
    const int deep = 100000;
    const QByteArray brackets = repeated("<a>", deep) + repeated("</a>", deep);
    const QByteArray large(1024 * 1024, 'x');
    return {
        {"an entity", withEntities("<!ENTITY e \"text\">", "&e;"), Good, 1},
        {"an entity that is not declared", document(item("&e;")), Damaged, 0},
        {"an entity of itself", withEntities("<!ENTITY e \"&e;\">", "&e;"), Damaged, 0},
        {"two entities of each other", withEntities("<!ENTITY e \"&f;\"><!ENTITY f \"&e;\">", "&e;"), Damaged, 0},
        {"a thousand million laughs", withEntities(laughs(), "&e9;"), Damaged, 0},
        {"laughs that nobody calls for", withEntities(laughs(), "A"), Good, 1},
        {"a long entity many times",
         withEntities("<!ENTITY e \"" + QByteArray(4000, 'x') + "\">", repeated("&e;", 1000)), Good, 1},
        {"a long entity a hundred thousand times",
         withEntities("<!ENTITY e \"" + QByteArray(4000, 'x') + "\">", repeated("&e;", 100000)), TooLarge, 0},
        {"a file as an entity", withEntities("<!ENTITY e SYSTEM \"file:///etc/passwd\">", "&e;"), Damaged, 0},
        {"an address as an entity", withEntities("<!ENTITY e PUBLIC \"p\" \"http://a.example.org/\">", "A"), Good, 1},
        {"an entity of a parameter", withEntities("<!ENTITY % p \"<!ENTITY e 'x'>\">%p;", "A"), Good, 1},
        {"a DTD elsewhere", "<!DOCTYPE tovadoc SYSTEM \"http://a.example.org/x.dtd\">\n" + body(item("A")), Good, 1},
        {"a DTD of another root", "<!DOCTYPE other>\n" + body(item("A")), Good, 1},
        {"a DTD cut off", "<!DOCTYPE tovadoc [<!ENTITY e \"", Damaged, 0},
        {"a default of the DTD",
         "<!DOCTYPE tovadoc [<!ATTLIST item visible CDATA \"1\">]>\n<tovadoc><menu><item name=\"A\"/></menu></tovadoc>",
         Good, 1},
        {"a hundred thousand levels", "<tovadoc>" + brackets + "<menu>" + item("A") + "</menu></tovadoc>", Good, 1},
        {"a hundred thousand levels, not closed", "<tovadoc><menu>" + item("A") + repeated("<a>", deep), Damaged, 1},
        {"links within links",
         "<tovadoc><menu>" + repeated(item("A").replace("/>", ">"), 50) + repeated("</item>", 50) + "</menu></tovadoc>",
         Good, 50},
        {"a name of a million letters", document(item(large)), Good, 1},
        {"an attribute's name of a million letters", document(item("A", " " + large + "=\"1\"")), Damaged, 0},
        {"an element's name of a million letters", document("<" + large + "/>" + item("A")), Damaged, 0},
        {"a text of a million letters", document(large + item("A")), Good, 1},
        {"a comment of a million letters", document("<!--" + large + "-->" + item("A")), Good, 1},
        {"ten thousand attributes",
         document("<item" +
                  [] {
                      QByteArray attributes;
                      for (int i = 0; i < 10000; ++i)
                          attributes += " a" + QByteArray::number(i) + "=\"1\"";
                      return attributes;
                  }() +
                  " name=\"A\" visible=\"1\"/>"),
         Good, 1},
        {"ten thousand links", document(repeated(item("A"), 10000)), Good, 10000},
        {"a counter of a million digits",
         QByteArray(document(item("A"))).replace(">2<", ">" + QByteArray(1024 * 1024, '9') + "<"), Good, 1},
        {"one byte more than is read", two() + QByteArray(LinkFile::largest + 1 - two().size(), ' '), TooLarge, 2},
        {"as much as is read", two() + QByteArray(LinkFile::largest - two().size(), ' '), Good, 2},
    };
}

QList<HostileContent> HostileContent::oddities()
{
    const QByteArray link = item("A");
    return {
        {"another root", "<other><menu>" + link + "</menu></other>", Good, 1},
        {"a link as the root", link, Good, 0},
        {"a menu as the root", "<menu>" + link + "</menu>", Good, 1},
        {"no menu", "<tovadoc>" + link + "</tovadoc>", Good, 0},
        {"a menu in upper case", "<tovadoc><MENU>" + link + "</MENU></tovadoc>", Good, 0},
        {"two menus", "<tovadoc><menu>" + link + "</menu><menu>" + link + "</menu></tovadoc>", Good, 2},
        {"a link behind the menu", "<tovadoc><menu/>" + link + "</tovadoc>", Good, 1},
        {"unknown elements", document("<folder>" + link + "<x/></folder>"), Good, 1},
        {"an unknown attribute", document(item("A", " icon=\"a.png\"")), Good, 1},
        {"an attribute twice", document(item("A", " name=\"B\"")), Damaged, 0},
        {"an attribute without quotes", document("<item name=A visible=\"1\"/>"), Damaged, 0},
        {"an attribute without a value", document("<item name visible=\"1\"/>"), Damaged, 0},
        {"single quotes", document("<item name='A' visible='1'/>"), Good, 1},
        {"a sign that must be written as an entity", document(item("A&B")), Damaged, 0},
        {"a bracket in a name", document(item("A<B")), Damaged, 0},
        {"markup written as entities", document(item("&lt;b&gt;&quot;")), Good, 1},
        {"a reference to NUL", document(item("&#0;")), Damaged, 0},
        {"a reference to half a surrogate pair", document(item("&#xD83D;")), Damaged, 0},
        {"a reference beyond Unicode", document(item("&#x110000;")), Damaged, 0},
        {"a reference to a line feed", document(item("&#10;")), Good, 1},
        {"tags that cross", document("<a>" + link + "<b></a></b>"), Damaged, 1},
        {"a tag that nobody opened", document(link + "</item>"), Damaged, 1},
        {"a namespace", "<tovadoc xmlns=\"urn:a\"><menu>" + link + "</menu></tovadoc>", Good, 1},
        {"a prefix of a namespace",
         "<q:tovadoc xmlns:q=\"urn:a\"><q:menu><q:item name=\"A\" visible=\"1\"/></q:menu></q:tovadoc>", Good, 1},
        {"a prefix of none", "<tovadoc><menu><q:item name=\"A\" visible=\"1\"/></menu></tovadoc>", Damaged, 0},
        {"an attribute in a namespace",
         "<tovadoc xmlns:q=\"urn:a\"><menu><item name=\"A\" q:visible=\"1\"/></menu></tovadoc>", Good, 0},
        {"character data", document("<![CDATA[" + link + "]]>"), Good, 0},
        {"character data not closed", document("<![CDATA[" + link), Damaged, 0},
        {"a link in a comment", document("<!--" + link + "-->"), Good, 0},
        {"a comment in a comment", document("<!-- a -- b -->" + link), Damaged, 0},
        {"a processing instruction", document("<?run rm -rf?>" + link), Good, 1},
        {"a declaration in the middle", document("<?xml version=\"1.0\"?>" + link), Damaged, 0},
        {"version 1.1", "<?xml version=\"1.1\"?>\n" + body(link), Damaged, 0},
        {"version 7", "<?xml version=\"7\"?>\n" + body(link), Damaged, 0},
        {"standalone", "<?xml version=\"1.0\" standalone=\"perhaps\"?>\n" + body(link), Damaged, 0},
        {"a counter below zero", QByteArray(document(link)).replace(">2<", ">-5<"), Good, 1},
        {"a counter beyond all numbers", QByteArray(document(link)).replace(">2<", ">99999999999999999999<"), Good, 1},
        {"a counter of letters", QByteArray(document(link)).replace(">2<", ">two<"), Good, 1},
        {"an id below zero", QByteArray(document(link)).replace("id=\"0\"", "id=\"-1\""), Good, 1},
        {"an id beyond all numbers", QByteArray(document(link)).replace("id=\"0\"", "id=\"99999999999999999999\""),
         Good, 1},
        {"an element in the counter", QByteArray(document(link)).replace(">2<", "><a/>2<"), Damaged, 0},
        {"a comment in the counter", QByteArray(document(link)).replace(">2<", "><!-- a -->2<"), Good, 1},
        {"two counters", QByteArray(document(link)).replace("<CurrentID>", "<CurrentID>1</CurrentID><CurrentID>"), Good,
         1},
        {"visible as a word", QByteArray(document(link)).replace("visible=\"1\"", "visible=\"true\""), Good, 0},
        {"visible and blanks", QByteArray(document(link)).replace("visible=\"1\"", "visible=\" 1\""), Good, 0},
        {"an unknown type", QByteArray(document(link)).replace("_INTERNET", "_TELEX"), Good, 1},
        {"an address of a script", QByteArray(document(link)).replace("http://a.example.org/", "javascript:alert(1)"),
         Good, 1},
        {"a path that leads up", QByteArray(document(link)).replace("http://a.example.org/", "../../../../bin/sh"),
         Good, 1},
        {"names that are equal", document(link + link), Good, 2},
        {"an empty name", document(item("")), Good, 1},
    };
}
