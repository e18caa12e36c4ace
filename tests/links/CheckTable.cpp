// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "CheckTable.h"

#include <QtGlobal>

QByteArray goodFile()
{
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<tovadoc type="config">
    <function>
        <Visible>1</Visible>
        <CurrentID>3</CurrentID>
    </function>
    <type>
        <item id=" 0" name="IDS_LINK_TYPE_APPLICATION"/>
        <item id=" 1" name="IDS_LINK_TYPE_E_MAIL"/>
        <item id=" 2" name="IDS_LINK_TYPE_INTERNET"/>
    </type>
    <menu parent="quicklink">
        <item id="0" name="Portal" type="IDS_LINK_TYPE_INTERNET" url="https://a.example/" para="" startconnect="1" startmobile="0" delete="1" edit="1" visible="1"/>
        <item id="1" name="Write" type="IDS_LINK_TYPE_E-MAIL" url="mailto:" para="" startconnect="0" startmobile="1" delete="0" edit="1" visible="1"/>
        <item id="2" name="Root" type="IDS_LINK_TYPE_APPLICATION" url="/" para="-x" startconnect="0" startmobile="0" delete="1" edit="0" visible="1"/>
    </menu>
</tovadoc>
)";
}

namespace
{
/** The good file with its first text from turned into to. */
QByteArray with(const QByteArray& from, const QByteArray& to)
{
    QByteArray content = goodFile();
    const int place = int(content.indexOf(from));
    Q_ASSERT(place >= 0);
    return content.replace(place, from.size(), to);
}

/** The good file with its first text behind the last one of another. */
QByteArray moved(const QByteArray& text, const QByteArray& behind)
{
    QByteArray content = with(text, "");
    const int place = int(content.lastIndexOf(behind));
    Q_ASSERT(place >= 0);
    return content.insert(place + behind.size(), text);
}

QByteArray typesAfterLinks()
{
    const QByteArray good = goodFile();
    const int begin = int(good.indexOf("<type>"));
    const int end = int(good.indexOf("</type>")) + 7;
    return moved(good.mid(begin, end - begin), "</menu>");
}

/** The good file less what stands from one text on to another. */
QByteArray without(const QByteArray& from, const QByteArray& to)
{
    QByteArray content = goodFile();
    const int begin = int(content.indexOf(from));
    return content.remove(begin, int(content.indexOf(to)) - begin);
}

const QByteArray header = "<function>\n        <Visible>1</Visible>\n        <CurrentID>3</CurrentID>\n    </function>";
const QByteArray counter = "<CurrentID>3</CurrentID>";
const QByteArray webType = "\"IDS_LINK_TYPE_INTERNET\" url";
const QByteArray webUrl = "\"https://a.example/\"";
const QByteArray program = "\"/\"";

QList<CheckedFile> wholeFiles()
{
    const QByteArray good = goodFile();
    return {
        {"nothing wrong", good, {}},
        {"attributes in another order", with("id=\"0\" name=\"Portal\"", "name=\"Portal\" id=\"0\""), {}},
        {"other quotation marks", with("\"Portal\"", "'Portal'"), {}},
        {"comments and instructions", with("<menu", "<!-- <b> --><?pi x?><menu"), {}},
        {"everything on one line", QByteArray(good).replace("\n", ""), {}},
        {"line ends of two signs", QByteArray(good).replace("\n", "\r\n"), {}},
        {"a byte order mark", "\xef\xbb\xbf" + good, {}},
        {"a byte order mark, and a finding", "\xef\xbb\xbf" + with("id=\"0\"", "id=\"a\""), {"bad-number id=\"a\""}},
        {"line ends of two signs, and a finding",
         with("id=\"0\"", "id=\"a\"").replace("\n", "\r\n"),
         {"bad-number id=\"a\""}},
        {"line ends of two signs, and short tags",
         with("<menu", "<b/><c/><d/><menu").replace("\n", "\r\n"),
         {"unknown-element <b/>", "unknown-element <c/>", "unknown-element <d/>"}},
        {"other scripts before a finding",
         with("id=\"0\" name=\"Portal\"", "name=\"\xd0\x9f &amp; \xf0\x9f\x98\x80\" id=\"a\""),
         {"bad-number id=\"a\""}},
        {"no declaration", with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n", ""), {}},
        {"a type of document", with("<tovadoc", "<!DOCTYPE tovadoc><tovadoc"), {}},
        {"end tags", with("visible=\"1\"/>", "visible=\"1\"></item>"), {}},
        {"numbers of signs", with("<Visible>1", "<Visible>&#49;"), {}},
        {"a counter as it stands", with(">3<", "><![CDATA[3]]><"), {}},
        {"counter first", moved("<Visible>1</Visible>", counter), {}},
        {"no list of types", without("<type>", "<menu"), {}},
        {"no links", without("<item id=\"0\"", "</menu>"), {}},
        {"other scripts", with("Portal", "\xd0\x9f\xd0\xbe\xd1\x80\xd1\x82\xd0\xb0\xd0\xbb"), {}},
        {"empty", "", {"not-well-formed"}},
        {"blanks", " \n \n", {"not-well-formed"}},
        {"no XML", "links", {"not-well-formed"}},
        {"cut", good.left(good.size() - 12), {"not-well-formed"}},
        {"a tag that is not closed", with("</menu>", ""), {"not-well-formed"}},
        {"two roots", good + "<tovadoc/>", {"not-well-formed"}},
        {"a byte of another encoding", with("Portal", "Caf\xe9"), {"not-well-formed"}},
        {"another encoding that is declared, and a finding",
         with("UTF-8", "ISO-8859-1").replace("Portal", "\xc3\xa9\xc3\xa9").replace("Root", "Write"),
         {"duplicate-name"}},
        {"a zero", with("Portal", QByteArray(1, '\0')), {"not-well-formed"}},
        {"an entity that nobody declared", with("Portal", "&a;"), {"not-well-formed"}},
        {"an attribute twice", with("id=\"0\"", "id=\"0\" id=\"0\""), {"not-well-formed"}},
        {"an ampersand", with("Portal", "R&D"), {"not-well-formed"}},
        {"findings before the damage",
         with("<Visible>1", "<Visible>0").replace("</menu>", ""),
         {"page-hidden 0<", "not-well-formed"}},
        {"more than its bytes",
         "<!DOCTYPE a [<!ENTITY b \"" + QByteArray(4000, 'b') + "\">]><a>" + QByteArray("&b;").repeated(5000) + "</a>",
         {"too-large"}},
    };
}

QList<CheckedFile> structures()
{
    return {
        {"another root", "<links/>", {"unknown-element <links"}},
        {"a part as root", "<menu parent=\"quicklink\"/>", {"misplaced-element <menu"}},
        {"root of a namespace", with("<tovadoc", "<tovadoc xmlns=\"urn:a\""), {"unknown-element <tovadoc"}},
        {"root without type", with(" type=\"config\"", ""), {"missing-attribute <tovadoc"}},
        {"root of another type", with("config", "menu"), {"wrong-value type=\"menu\""}},
        {"root with another attribute",
         with("type=\"config\"", "type=\"config\" version=\"2\""),
         {"unknown-attribute version="}},
        {"text in the root", with("    <menu", "links: <menu"), {"unexpected-text"}},
        {"unknown element", with("<menu", "<b><c>d</c></b><menu"), {"unknown-element <b>"}},
        {"element of another case",
         with(header, "<Function/>"),
         {"missing-element <tovadoc", "unknown-element <Function/>"}},
        {"no header", with(header, ""), {"missing-element <tovadoc"}},
        {"header twice", with(header, header + header), {"repeated-element <function>"}},
        {"header behind the types", moved(header, "</type>"), {"misplaced-element <function>"}},
        {"header after the links",
         moved(header, "</menu>"),
         {"misplaced-element <Visible>", "counter-after-links <CurrentID>"}},
        {"header with an attribute", with("<function", "<function a=\"b\""), {"unknown-attribute a="}},
        {"text in the header", with("<Visible", "a<Visible"), {"unexpected-text"}},
        {"no Visible", with("<Visible>1</Visible>", ""), {"missing-element <function>"}},
        {"page hidden", with("<Visible>1", "<Visible>0"), {"page-hidden 0<"}},
        {"Visible with a carriage return that the program leaves out",
         with("<Visible>1", "<Visible>1\r"),
         {"schema-broken <Visible>"}},
        {"the same, and more in the file",
         with("<Visible>1", "<Visible>1\r").replace("edit=\"0\"", "edit=\"2\"").replace("</type>", "<b/></type>"),
         {"schema-broken <Visible>", "unknown-element <b/>", "bad-flag edit=\"2\""}},
        {"Visible by an entity",
         with("<tovadoc", "<!DOCTYPE tovadoc [<!ENTITY one \"1\">]><tovadoc").replace("<Visible>1", "<Visible>&one;"),
         {}},
        {"Visible a word", with("<Visible>1", "<Visible>true"), {"bad-flag true<"}},
        {"Visible a blank", with("<Visible>1", "<Visible> 1"), {"bad-flag  1<"}},
        {"Visible empty", with("<Visible>1</Visible>", "<Visible/>"), {"bad-flag"}},
        {"Visible twice", with("<Visible>", "<Visible>1</Visible><Visible>"), {"repeated-element <Visible>"}},
        {"Visible in the root", with("<menu", "<Visible>1</Visible><menu"), {"misplaced-element <Visible>"}},
        {"no counter", with(counter, ""), {"missing-element <function>"}},
        {"counter of letters", with(">3<", ">three<"), {"bad-number three<"}},
        {"counter empty", with(">3<", "><"), {"bad-number <"}},
        {"counter with blanks", with(">3<", "> 3 <"), {"bad-number  3 <"}},
        {"counter below zero", with(">3<", ">-3<"), {"bad-number -3<"}},
        {"counter of 18 digits", with(">3<", ">123456789012345678<"), {}},
        {"counter of 19 digits", with(">3<", ">1234567890123456789<"), {"bad-number 1234"}},
        {"counter not above every id", with(">3<", ">2<"), {"counter-too-low 2<"}},
        {"counter below an id", with("id=\"1\"", "id=\"40\""), {"counter-too-low 3<"}},
        {"counter after the links",
         moved(counter, "</menu>"),
         {"missing-element <function>", "counter-after-links <CurrentID>"}},
        {"counter in the menu",
         moved(counter, "edit=\"0\" visible=\"1\"/>"),
         {"missing-element <function>", "counter-after-links <CurrentID>"}},
        {"counter in the root",
         moved(counter, "</function>"),
         {"missing-element <function>", "misplaced-element <CurrentID>"}},
        {"counter twice", with(counter, counter + counter), {"repeated-element <CurrentID>"}},
        {"element in the counter", with(">3<", ">3<b/><"), {"unknown-element <b/>"}},
        {"two types",
         with("<item id=\" 1\" name=\"IDS_LINK_TYPE_E_MAIL\"/>", ""),
         {"missing-element <type>", "wrong-value id=\" 2\"", "wrong-value name="}},
        {"four types", with("</type>", "<item id=\" 3\" name=\"A\"/></type>"), {"repeated-element <item id=\" 3\""}},
        {"hyphen in the list of types", with("E_MAIL", "E-MAIL"), {"wrong-value name=\"IDS_LINK_TYPE_E-MAIL\""}},
        {"no blank in the list of types", with("\" 0\"", "\"0\""), {"wrong-value id=\"0\""}},
        {"a type without a name",
         with(" name=\"IDS_LINK_TYPE_APPLICATION\"", ""),
         {"missing-attribute <item id=\" 0\""}},
        {"types after the links", typesAfterLinks(), {"misplaced-element <type>"}},
        {"no menu", "<tovadoc type=\"config\">" + header + "</tovadoc>", {"missing-element <tovadoc"}},
        {"menu twice", with("</menu>", "</menu><menu parent=\"quicklink\"/>"), {"repeated-element <menu"}},
        {"menu without parent", with(" parent=\"quicklink\"", ""), {"missing-attribute <menu>"}},
        {"menu of another parent", with("quicklink", "QuickLink"), {"wrong-value parent="}},
        {"menu with another attribute", with("<menu", "<menu a=\"b\""), {"unknown-attribute a="}},
        {"header between menu and end",
         with("</menu>", "</menu><function/>"),
         {"repeated-element <function/>", "missing-element <function/>", "missing-element <function/>"}},
    };
}

QList<CheckedFile> links()
{
    return {
        {"text in the menu", with("<item id=\"1\"", "a<item id=\"1\""), {"unexpected-text"}},
        {"another element in the menu",
         with("<item id=\"0\"", "<separator/><item id=\"0\""),
         {"unknown-element <separator/>"}},
        {"link in a link",
         with("visible=\"1\"/>", "visible=\"1\"><item/></item>"),
         {"misplaced-element <item/>", "hidden-link <item/>"}},
        {"link behind the menu",
         moved("<item id=\"2\" name=\"Root\" type=\"IDS_LINK_TYPE_APPLICATION\" url=\"/\" para=\"-x\" "
               "startconnect=\"0\" startmobile=\"0\" delete=\"1\" edit=\"0\" visible=\"1\"/>",
               "</menu>"),
         {"misplaced-element <item id=\"2\""}},
        {"link before the menu", with("<menu", "<item/><menu"), {"misplaced-element <item/>"}},
        {"no id", with("id=\"0\" ", ""), {"missing-attribute <item name="}},
        {"no name", with("name=\"Portal\" ", ""), {"missing-attribute <item id=\"0\"", "empty-name <item id=\"0\""}},
        {"no type", with("type=\"IDS_LINK_TYPE_INTERNET\" ", ""), {"missing-attribute <item id=\"0\""}},
        {"no address",
         with("url=\"mailto:\" ", ""),
         {"missing-attribute <item id=\"1\"", "relative-path <item id=\"1\""}},
        {"no parameters", with("para=\"\" ", ""), {"missing-attribute <item id=\"0\""}},
        {"no mark for a connection", with("startconnect=\"1\" ", ""), {"missing-attribute <item id=\"0\""}},
        {"no mark for a start", with("startmobile=\"0\" ", ""), {"missing-attribute <item id=\"0\""}},
        {"no right to delete", with("delete=\"1\" ", ""), {"missing-attribute <item id=\"0\""}},
        {"no right to edit", with("edit=\"1\" ", ""), {"missing-attribute <item id=\"0\""}},
        {"no visible", with(" visible=\"1\"", ""), {"missing-attribute <item id=\"0\"", "hidden-link <item id=\"0\""}},
        {"a key, as operators give", with("id=\"0\" name=\"P", "id=\"0\" key=\"p\" name=\"P"), {}},
        {"a key of another element", with("<menu", "<menu key=\"p\""), {"unknown-attribute key="}},
        {"unknown attribute", with("url=\"https", "icon=\"a\" url=\"https"), {"unknown-attribute icon="}},
        {"attribute of another case",
         with("para=\"\"", "Para=\"\""),
         {"missing-attribute <item id=\"0\"", "unknown-attribute Para="}},
        {"attribute on a line of its own",
         with("para=\"\" startconnect=\"1\"", "\n   icon=\"\"\n\tpara=\"\" startconnect=\"2\""),
         {"unknown-attribute icon=", "bad-flag startconnect=\"2\""}},
        {"id of letters", with("id=\"0\"", "id=\"a\""), {"bad-number id=\"a\""}},
        {"id empty", with("id=\"0\"", "id=\"\""), {"bad-number id=\"\""}},
        {"two ids empty",
         with("id=\"0\"", "id=\"\"").replace("id=\"1\"", "id=\"\""),
         {"bad-number id=\"\"", "bad-number id=\"\""}},
        {"id with a blank", with("id=\"0\"", "id=\" 0\""), {"bad-number id=\" 0\""}},
        {"id twice", with("id=\"1\"", "id=\"0\""), {"duplicate-id id=\"0\""}},
        {"id three times",
         with("id=\"1\"", "id=\"0\"").replace("id=\"2\"", "id=\"0\""),
         {"duplicate-id id=\"0\"", "duplicate-id id=\"0\""}},
        {"name twice", with("Write", "Portal"), {"duplicate-name name=\"Portal\""}},
        {"name of another case", with("Write", "portal"), {}},
        {"name empty", with("Portal", ""), {"empty-name name="}},
        {"name of 49 signs", with("Portal", QByteArray(49, 'a')), {}},
        {"name of 50 signs", with("Portal", QByteArray(50, 'a')), {"too-long name="}},
        {"name of 25 signs of two units",
         with("Portal", QByteArray("\xf0\x9f\x98\x80").repeated(25)),
         {"too-long name="}},
        {"type unknown", with(webType, "\"IDS_LINK_TYPE_WEB\" url"), {"unknown-type type=\"IDS_LINK_TYPE_WEB\""}},
        {"type of another case", with(webType, "\"ids_link_type_internet\" url"), {"unknown-type type="}},
        {"type empty", with(webType, "\"\" url"), {"unknown-type type="}},
        {"mail with an underscore", with("E-MAIL", "E_MAIL"), {"unknown-type type=\"IDS_LINK_TYPE_E_MAIL\""}},
        {"flag a word", with("startconnect=\"1\"", "startconnect=\"yes\""), {"bad-flag startconnect="}},
        {"flag empty", with("startmobile=\"0\"", "startmobile=\"\""), {"bad-flag startmobile="}},
        {"flag with a blank", with("delete=\"1\"", "delete=\" 1\""), {"bad-flag delete="}},
        {"flag of two", with("edit=\"1\"", "edit=\"2\""), {"bad-flag edit="}},
        {"the same flag of two links",
         with("edit=\"1\"", "edit=\"2\"").replace("edit=\"0\"", "edit=\"3\""),
         {"bad-flag edit=\"2\"", "bad-flag edit=\"3\""}},
        {"hidden", with("visible=\"1\"", "visible=\"0\""), {"hidden-link visible=\"0\""}},
        {"hidden by a word", with("visible=\"1\"", "visible=\"true\""), {"bad-flag visible=", "hidden-link visible="}},
        {"hidden, with all that is wrong",
         with("visible=\"1\"", "visible=\"0\"").replace(webUrl, "\"a\"").replace("Write", "Portal"),
         {"hidden-link visible=\"0\""}},
        {"address of 261 signs", with(webUrl, "\"http://a/" + QByteArray(252, 'a') + "\""), {}},
        {"address of 262 signs", with(webUrl, "\"http://a/" + QByteArray(253, 'a') + "\""), {"too-long url="}},
        {"parameters of 262 signs", with("\"-x\"", "\"" + QByteArray(262, 'a') + "\""), {"too-long para="}},
        {"address without what a click wants", with(webUrl, "\"a.example\""), {"address-refused url="}},
        {"address in capitals", with(webUrl, "\"HTTP://a.example\""), {"address-refused url="}},
        {"address empty", with(webUrl, "\"\""), {"address-refused url="}},
        {"address with www", with(webUrl, "\"www.a.example\""), {}},
        {"address with ftp in it", with(webUrl, "\"myftphost.example\""), {}},
        {"mail as an address", with(webUrl, "\"mailto:someone@a.example\""), {"address-refused url="}},
        {"address without a host", with(webUrl, "\"http://\""), {"address-leads-nowhere url="}},
        {"address of another scheme", with(webUrl, "\"sftp://a.example\""), {"address-leads-nowhere url="}},
        {"program not there", with(program, "\"/no/such/program\""), {"program-missing url="}},
        {"program of no place", with(program, "\"editor\""), {"relative-path url="}},
        {"program in the home folder", with(program, "\"~/editor\""), {"relative-path url="}},
        {"program as an address", with(program, "\"file:///\""), {}},
        {"page in a program", with(program, "\"https://a.example/\""), {}},
        {"script in a program", with(program, "\"javascript:alert(1)\""), {"address-never-opened url="}},
        {"no address at all", with(program, "\"http://a b:c\""), {"address-leads-nowhere url="}},
        {"mail to somebody", with("\"mailto:\"", "\"mailto:someone@a.example\""), {}},
        {"mail with a telephone", with("\"mailto:\"", "\"tel:+15550100\""), {}},
        {"mail that is data", with("\"mailto:\"", "\"data:text/html,a\""), {"address-never-opened url="}},
    };
}
} // namespace

QList<CheckedFile> checkedFiles()
{
    return wholeFiles() + structures() + links();
}
