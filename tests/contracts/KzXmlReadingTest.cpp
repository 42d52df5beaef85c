#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <sstream>

#include "tests/support/CommaLocale.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/XmlText.h"
#include "varnel/contracts/Tools/Error.h"

using testsupport::build;
using testsupport::textOf;

namespace {

/// Reads the text and gives back the message of the error, empty without one.
std::string errorOf(const std::string &text) {
    KzXmlTree tree("EARLIER");
    KzXmlData *root = tree.getRoot();
    KzXmlData *cursor = tree.open("CURSOR");
    try {
        build(tree, text);
    } catch (const Tools::Error &error) {
        EXPECT_EQ(tree.getRoot(), root);
        EXPECT_EQ(tree.getCursor(), cursor);
        EXPECT_EQ(root->findChild("CURSOR"), cursor);
        return error.what();
    }
    return {};
}

std::string dataOf(const std::string &text) {
    KzXmlTree tree("EARLIER");
    EXPECT_TRUE(build(tree, text));
    return tree.getRoot()->getData();
}

std::string attributeOf(const std::string &text) {
    KzXmlTree tree("EARLIER");
    EXPECT_TRUE(build(tree, text));
    const auto *attribute = tree.getRoot()->findAttribute("a");
    return attribute ? attribute->getData() : "absent";
}

bool hasPlace(const std::string &message) {
    int line = 0, column = 0, end = 0;
    std::sscanf(message.c_str(), "line %d, column %d: %n", &line, &column, &end);
    return line > 0 && column > 0 && end > 0 && message.size() > static_cast<std::size_t>(end);
}

std::string utf16(const std::u16string &text, bool big) {
    std::string bytes;
    for (const char16_t unit : u"\uFEFF" + text) {
        const char high = static_cast<char>(unit >> 8);
        const char low = static_cast<char>(unit & 0xFF);
        bytes += big ? std::string{high, low} : std::string{low, high};
    }
    return bytes;
}

}  // namespace

TEST(KzXmlReading, BuildsElementsAttributesAndTextInDocumentOrder) {
    KzXmlTree tree("OLD");
    tree.open("X");
    ASSERT_TRUE(build(tree,
                      "<?xml version='1.0' encoding='utf-8' standalone='yes' ?>\n<!-- note -->\n"
                      "<R one = '1'\n two=\"2\">\n  <A/>\n  <B >text</B >\n  <A k=''></A>\n</R>\n<?end?>\n"));
    EXPECT_EQ(tree.getName(), "R");
    EXPECT_EQ(tree.getCursor(), tree.getRoot());
    const auto &children = tree.getRoot()->getChildren();
    ASSERT_EQ(children.size(), 3U);
    EXPECT_EQ(children[0]->getName(), "A");
    EXPECT_EQ(children[1]->getData(), "text");
    EXPECT_EQ(children[1]->getParent(), tree.getRoot());
    EXPECT_EQ(children[2]->findAttribute("k")->getData(), "");
    EXPECT_EQ(tree.getRoot()->findAttribute("one")->getData(), "1");
    EXPECT_EQ(tree.getRoot()->findAttribute("two")->getData(), "2");
    EXPECT_EQ(tree.getRoot()->getData(), "");
}

TEST(KzXmlReading, AnEmptyStreamGivesARootWithoutName) {
    for (const std::string &text :
         {std::string(), std::string(" \r\n\t "), std::string("\xEF\xBB\xBF"), std::string("\xFF\xFE"),
          std::string("\xFE\xFF"), std::string("\xFF\xFE \0", 4)}) {
        KzXmlTree tree("OLD");
        tree.open("X");
        EXPECT_TRUE(build(tree, text));
        EXPECT_EQ(tree.getName(), "");
        EXPECT_EQ(tree.getCursor(), tree.getRoot());
        EXPECT_TRUE(tree.getRoot()->getChildren().empty());
    }
}

TEST(KzXmlReading, AStreamThatCannotBeReadLeavesTheTree) {
    KzXmlTree tree("OLD");
    KzXmlData *cursor = tree.open("X");
    std::ifstream missing("/nowhere/at all");
    EXPECT_FALSE(tree.buildOfStream(missing));
    std::ifstream directory("/");
    EXPECT_FALSE(tree.buildOfStream(directory));
    EXPECT_TRUE(directory.bad());
    struct Breaking : std::streambuf {
        std::string text = "<R>" + std::string(600000, ' ');
        bool begun = false;
        int_type underflow() override {
            if (begun) throw 5;
            begun = true;
            setg(text.data(), text.data(), text.data() + text.size());
            return traits_type::to_int_type(*gptr());
        }
    } breaking;
    std::istream stream(&breaking);
    EXPECT_FALSE(tree.buildOfStream(stream));
    EXPECT_TRUE(stream.bad());
    EXPECT_EQ(tree.getCursor(), cursor);
    EXPECT_EQ(tree.getName(), "OLD");
}

TEST(KzXmlReading, TheExceptionMaskOfTheStreamDoesNotMatter) {
    std::istringstream stream("<R/>");
    stream.exceptions(std::ios_base::badbit | std::ios_base::failbit | std::ios_base::eofbit);
    KzXmlTree tree("OLD");
    EXPECT_TRUE(tree.buildOfStream(stream));
    EXPECT_EQ(tree.getName(), "R");
}

TEST(KzXmlReading, TextOfALeafIsKeptToTheByte) {
    EXPECT_EQ(dataOf("<R>  a\n b\t</R>"), "  a\n b\t");
    EXPECT_EQ(dataOf("<R> \n </R>"), " \n ");
    EXPECT_EQ(dataOf("<R>a ]] > b ]&gt; c</R>"), "a ]] > b ]> c");
}

TEST(KzXmlReading, LineEndsAreNormalised) {
    EXPECT_EQ(dataOf("<R>a\r\nb\rc\r\r\n\nd</R>"), "a\nb\nc\n\n\nd");
    EXPECT_EQ(attributeOf("<R a='x\r\ny\rz'/>"), "x y z");
    EXPECT_EQ(dataOf("<R>a&#13;&#xD;&#10;</R>"), "a\r\r\n");
    EXPECT_EQ(attributeOf("<R a='x&#13;&#10;&#9;y\tz'/>"), "x\r\n\ty z");
}

TEST(KzXmlReading, BlankTextBesideElementsIsNothingAndOtherTextIsJoined) {
    EXPECT_EQ(dataOf("<R>\n  <A/>\n  <B/>\n</R>"), "");
    EXPECT_EQ(dataOf("<R> one <A/>\n<B/> two</R>"), " one  two");
    EXPECT_EQ(dataOf("<R><!-- a --> <?b c?> </R>"), "  ");
    EXPECT_EQ(dataOf("<R> <!-- a --> <A/> <?b c?> </R>"), "");
}

TEST(KzXmlReading, CharacterDataJoinsTheText) {
    EXPECT_EQ(dataOf("<R>a<![CDATA[<b>&amp;]]]]>c<![CDATA[]]></R>"), "a<b>&amp;]]c");
    EXPECT_EQ(dataOf("<R><![CDATA[ ]]></R>"), " ");
    EXPECT_EQ(dataOf("<R><![CDATA[\r\n]]]></R>"), "\n]");
}

TEST(KzXmlReading, ReferencesStandForTheirCharacters) {
    EXPECT_EQ(dataOf("<R>&lt;&gt;&amp;&quot;&apos;</R>"), "<>&\"'");
    EXPECT_EQ(attributeOf("<R a='&lt;&gt;&amp;&quot;&apos;'/>"), "<>&\"'");
    EXPECT_EQ(dataOf("<R>&#65;&#x42;&#xe4;&#x20AC;&#x1F600;&#0065;</R>"),
              "AB\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"
              "A");
}

TEST(KzXmlReading, EncodingsAreReadAsUtf8) {
    const std::string umlaut = "\xC3\xA4\xE2\x82\xAC";
    EXPECT_EQ(dataOf("\xEF\xBB\xBF<R>" + umlaut + "</R>"), umlaut);
    EXPECT_EQ(dataOf("\xEF\xBB\xBF<?xml version='1.0' encoding='ISO-8859-1'?><R>" + umlaut + "</R>"), umlaut);
    EXPECT_EQ(dataOf("<?xml version='1.0' encoding='iso-8859-1'?><R>\xE4\x80</R>"), "\xC3\xA4\xC2\x80");
    EXPECT_EQ(dataOf("<?xml version='1.0' encoding='Windows-1252'?><R>\xE4\x80\x81</R>"),
              umlaut + "\xC2\x81");
    for (const bool big : {false, true}) {
        EXPECT_EQ(dataOf(utf16(u"<R>\u00E4\u20AC\U0001F600</R>", big)), umlaut + "\xF0\x9F\x98\x80");
        EXPECT_EQ(dataOf(utf16(u"<?xml version='1.0' encoding='UTF-16'?><R>\u00E4</R>", big)), "\xC3\xA4");
    }
}

TEST(KzXmlReading, OnlyADeclarationDeclaresAnEncoding) {
    const std::string umlaut = "\xC3\xA4";
    EXPECT_EQ(dataOf("<?xml-stylesheet encoding='iso-8859-1'?><R>" + umlaut + "</R>"), umlaut);
    EXPECT_EQ(dataOf("<?xml version='1.0'?><?a encoding='iso-8859-1'?><R>" + umlaut + "</R>"), umlaut);
    EXPECT_EQ(dataOf("<?xml\n\tversion='1.0'\r\nencoding\t=\n'iso-8859-1' ?><R>\xE4</R>"), umlaut);
    for (const char *cut : {"<?xml", "<?xml ", "<?xml encoding=", "<?xml encoding='iso-8859-1"})
        EXPECT_TRUE(hasPlace(errorOf(cut))) << cut;
}

TEST(KzXmlReading, BytesThatAreNotUtf8AreTakenAsWindows1252) {
    EXPECT_EQ(dataOf("<R>\xE4</R>"), "\xC3\xA4");
    EXPECT_EQ(dataOf("<R>\xC3\xA4\xE4\x80</R>"), "\xC3\xA4\xC3\xA4\xE2\x82\xAC");
    EXPECT_EQ(dataOf("<R>\xED\xA0\x80</R>"), "\xC3\xAD\xC2\xA0\xE2\x82\xAC");
    EXPECT_EQ(dataOf("<R>\xC0\xAF</R>"), "\xC3\x80\xC2\xAF");
    EXPECT_EQ(attributeOf("<R a='\xFF'/>"), "\xC3\xBF");
}

TEST(KzXmlReading, OtherEncodingsAreRefusedByName) {
    EXPECT_EQ(errorOf("<?xml version=\"1.0\" encoding=\"KOI8-R\"?><R/>"),
              "line 1, column 31: encoding KOI8-R is not supported");
    EXPECT_EQ(errorOf("<?xml version='1.0' encoding='UTF-16'?><R/>"),
              "line 1, column 31: encoding UTF-16 without a byte order mark");
}

TEST(KzXmlReading, MalformedDocumentsAreRefusedWithLineAndColumn) {
    const std::string deep = "<a>";
    struct Row {
        std::string text;
        const char *message;
    };
    for (const Row &row : {
             Row{"<R>\n  <A>\n</R>", "line 3, column 1: </R> where </A> is expected"},
             Row{"<R>", "line 1, column 4: the document ends within <R>"},
             Row{"<R><A", "line 1, column 6: the document ends within <R>"},
             Row{"<R", "line 1, column 3: the document ends within a tag, comment or instruction"},
             Row{"<!-- ", "line 1, column 6: the document ends within a tag, comment or instruction"},
             Row{"<?xml version='1.0'?>\n", "line 2, column 1: the document has no element"},
             Row{"<R/>\n<S/>", "line 2, column 1: a second root element"},
             Row{"<R/>text", "line 1, column 5: text outside the root element"},
             Row{"text", "line 1, column 1: text outside the root element"},
             Row{"<![CDATA[x]]>", "line 1, column 1: text outside the root element"},
             Row{"</R>", "line 1, column 1: an end tag without a start tag"},
             Row{"<R a='1' b='2' a='3'/>", "line 1, column 16: attribute a is there twice"},
             Row{"<R a='1'b='2'/>", "line 1, column 9: a blank is expected before an attribute"},
             Row{"<R a>", "line 1, column 5: = is expected after an attribute's name"},
             Row{"<R a=1>", "line 1, column 6: a quoted value is expected"},
             Row{"<R a='<'>", "line 1, column 7: < within an attribute's value"},
             Row{"<R &>", "line 1, column 4: an attribute, > or /> is expected"},
             Row{"<R/ >", "line 1, column 4: > is expected after /"},
             Row{"<R></R a='1'>", "line 1, column 8: > is expected"},
             Row{"<R></ R>", "line 1, column 6: a name is expected after </"},
             Row{"<1/>", "line 1, column 2: a name is expected after <"},
             Row{"< R/>", "line 1, column 2: a name is expected after <"},
             Row{"<R>\xC3\xA4&b;</R>", "line 1, column 5: unknown entity &b;"},
             Row{"<R>a & b</R>", "line 1, column 6: & without a reference"},
             Row{"<R>&#0;</R>", "line 1, column 4: a reference to a character that XML does not allow"},
             Row{"<R>&#xD800;</R>", "line 1, column 4: a reference to a character that XML does not allow"},
             Row{"<R>&#x110000;</R>", "line 1, column 4: a reference to a character that XML does not allow"},
             Row{"<R>&#99999999999;</R>",
                 "line 1, column 4: a reference to a character that XML does not allow"},
             Row{"<R>&#;</R>", "line 1, column 4: a reference to a character that XML does not allow"},
             Row{"<R>&;</R>", "line 1, column 4: unknown entity &;"},
             Row{"<R>]]></R>", "line 1, column 4: ]]> within text"},
             Row{"<R>\x01</R>", "line 1, column 4: a character that XML does not allow"},
             Row{"<R a='\x1F'/>", "line 1, column 7: a character that XML does not allow"},
             Row{"<R>\xEF\xBF\xBF</R>", "line 1, column 4: a character that XML does not allow"},
             Row{std::string("<R>\0</R>", 8), "line 1, column 4: a character that XML does not allow"},
             Row{std::string("<R \0/>", 6), "line 1, column 4: a character that XML does not allow"},
             Row{std::string("<R/>\n\0", 6), "line 2, column 1: a character that XML does not allow"},
             Row{std::string("<R><!-- \0 --></R>", 17),
                 "line 1, column 9: a character that XML does not allow"},
             Row{"<R><!-- -- --></R>", "line 1, column 9: -- within a comment"},
             Row{"<!DOCTYPE R [<!ENTITY a SYSTEM 'file:///etc/passwd'>]><R>&a;</R>",
                 "line 1, column 1: a document type declaration is not accepted"},
             Row{"<R><!ELEMENT a></R>", "line 1, column 4: unknown markup"},
             Row{" <?xml version='1.0'?><R/>",
                 "line 1, column 2: an XML declaration is only accepted at the very beginning"},
             Row{"<R><?XmL ?></R>",
                 "line 1, column 4: an XML declaration is only accepted at the very beginning"},
             Row{"<?xml encoding='UTF-8'?><R/>", "line 1, column 7: malformed XML declaration"},
             Row{"<?xml version='2.0'?><R/>", "line 1, column 16: unknown XML version"},
             Row{"<?xml version='1.0' standalone='maybe'?><R/>",
                 "line 1, column 33: malformed XML declaration"},
             Row{"<?xml version='1.0' encoding=?><R/>", "line 1, column 30: malformed XML declaration"},
             Row{"<?xml?><R/>", "line 1, column 6: malformed XML declaration"},
             Row{"<?1?><R/>", "line 1, column 3: a name is expected after <?"},
         }) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(errorOf(row.text), row.message);
    }
}

TEST(KzXmlReading, SurrogatesAloneAndHalfUnitsAreMalformed) {
    EXPECT_TRUE(
        hasPlace(errorOf(utf16({u'<', u'R', u'>', char16_t{0xD800}, u'<', u'/', u'R', u'>'}, false))));
    EXPECT_TRUE(hasPlace(errorOf(utf16({u'<', u'R', u'>', char16_t{0xDC00}, u'<', u'/', u'R', u'>'}, true))));
    EXPECT_TRUE(hasPlace(errorOf(utf16(u"<R/>", false) + " ")));
}

TEST(KzXmlReading, NestingIsLimitedToAThousand) {
    const auto nested = [](std::size_t depth) {
        std::string text;
        for (std::size_t i = 0; i < depth; ++i) text += "<a>";
        for (std::size_t i = 0; i < depth; ++i) text += "</a>";
        return text;
    };
    EXPECT_EQ(errorOf(nested(1000)), "");
    EXPECT_EQ(errorOf(nested(1001)), "line 1, column 3001: elements are nested more than 1000 deep");
    EXPECT_EQ(errorOf(nested(1000000)), "line 1, column 3001: elements are nested more than 1000 deep");
}

TEST(KzXmlReading, AMillionAttributesOfOneElementTakeLinearTime) {
    std::string text = "<R";
    for (int i = 0; i < 1000000; ++i) text += " a" + std::to_string(i) + "=''";
    KzXmlTree tree("OLD");
    ASSERT_TRUE(build(tree, text + "/>"));
    EXPECT_NE(tree.getRoot()->findAttribute("a999999"), nullptr);
    EXPECT_EQ(tree.getRoot()->findAttribute("a1000000"), nullptr);
    EXPECT_EQ(errorOf(text + " a500000='x'/>").substr(0, 8), "line 1, ");
}

TEST(KzXmlReading, ADocumentCutOffAnywhereIsRefused) {
    const std::string text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!-- c --><R a=\"&lt;\" b='2'>\n "
        "<A>t&#65;\xC3\xA4</A><![CDATA[x]]>"
        "<?p i?><B/>\n</R>";
    EXPECT_EQ(errorOf(text), "");
    for (std::size_t size = 1; size < text.size(); ++size) {
        SCOPED_TRACE(size);
        EXPECT_TRUE(hasPlace(errorOf(text.substr(0, size))));
    }
}

TEST(KzXmlReading, ADocumentWithAnyByteReplacedIsReadOrRefusedWithItsPlace) {
    const std::string text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!-- c --><R a=\"&lt;\" b='2'>\n "
        "<A>t&#65;\xC3\xA4</A><![CDATA[x]]>"
        "<?p i?><B/>\n</R>";
    for (std::size_t at = 0; at < text.size(); ++at) {
        for (int byte = 0; byte < 256; ++byte) {
            std::string changed = text;
            changed[at] = static_cast<char>(byte);
            const std::string message = errorOf(changed);
            EXPECT_TRUE(message.empty() || hasPlace(message)) << at << ' ' << byte << ' ' << message;
        }
    }
}

TEST(KzXmlReading, LongDocumentsGiveTheSameWhateverTheWindowCutsThrough) {
    // Pieces of many kinds, shifted so that the borders of the windows meet each of them at each place.
    const std::string piece =
        "<A k=\"v&amp;w\" l='\xC3\xA4'>text\r\n&#65;\xE2\x82\xAC<!-- c --><B/><![CDATA[]]x]]><?p?></A >\r\n";
    std::string expected;
    for (std::size_t shift = 0; shift < piece.size(); shift += 3) {
        std::string text = "<R>" + std::string(shift, ' ');
        while (text.size() < 600000) text += piece;
        KzXmlTree tree("OLD");
        ASSERT_TRUE(build(tree, text + "</R>"));
        const std::string written = textOf(tree);
        if (expected.empty()) expected = written;
        ASSERT_EQ(written.substr(0, expected.size() - 500), expected.substr(0, expected.size() - 500));
        for (const auto *child : tree.getRoot()->getChildren())
            ASSERT_EQ(child->getData(), "text\nA\xE2\x82\xAC]]x");
    }
}

TEST(KzXmlReading, PiecesLongerThanAWindowAreRead) {
    const std::string much(1500000, 'x');
    EXPECT_EQ(dataOf("<R>" + much + "</R>"), much);
    EXPECT_EQ(attributeOf("<R a='" + much + "'/>"), much);
    EXPECT_EQ(dataOf("<R><!--" + much + "-->a</R>"), "a");
    EXPECT_EQ(dataOf("<R><![CDATA[" + much + "]]></R>"), much);
    const std::string name = "<" + much + "/>";
    KzXmlTree tree("OLD");
    ASSERT_TRUE(build(tree, name));
    EXPECT_EQ(tree.getName(), much);
    EXPECT_EQ(dataOf("<R>" + std::string(700000, '\xE4') + "</R>").size(), 1400000U);
}

TEST(KzXmlReading, APieceOfManyWindowsIsReadInLargerAndLargerPortions) {
    // Each portion looks through the whole piece again, so there must be few of them.
    struct Counting : std::stringbuf {
        using std::stringbuf::stringbuf;
        std::streamsize xsgetn(char *to, std::streamsize size) override {
            ++reads;
            return std::stringbuf::xsgetn(to, size);
        }
        int reads = 0;
    };
    const std::size_t size = 4000000;
    std::string wide = utf16(u"<R>", false);
    for (std::size_t i = 0; i < size; ++i) wide.append("\xE4\0", 2);
    const std::string narrow(size, '\xE4');
    for (const std::string &text : {wide + utf16(u"</R>", false).substr(2), "<R>" + narrow + "</R>",
                                    "<?xml version='1.0' encoding='iso-8859-1'?><R>" + narrow + "</R>"}) {
        Counting buffer(text);
        std::istream stream(&buffer);
        KzXmlTree tree("OLD");
        ASSERT_TRUE(tree.buildOfStream(stream));
        EXPECT_EQ(tree.getRoot()->getData().size(), 2 * size);
        EXPECT_LT(buffer.reads, 20);
    }
}

TEST(KzXmlReading, ErrorsFarInsideADocumentHaveTheirPlace) {
    std::string text = "<R>\r\n";
    for (int i = 0; i < 100000; ++i) text += "  <A>\xC3\xA4</A>\r\n";
    EXPECT_EQ(errorOf(text + " \xC3\xA4&x;</R>"), "line 100002, column 3: unknown entity &x;");
}

TEST(KzXmlReading, TheLocaleChangesNothing) {
    const varnel::test::CommaLocale comma;
    std::istringstream stream("<R a='1.5'><X>2.25</X></R>");
    stream.imbue(varnel::test::commaLocale());
    KzXmlTree tree("OLD");
    ASSERT_TRUE(tree.buildOfStream(stream));
    EXPECT_EQ(tree.getRoot()->findAttribute("a")->getDouble(), 1.5);
    tree.getRoot()->setData(1234567.5);
    tree.setAttribute("b", 1e300);
    tree.getRoot()->setAttribute("c", 1234567, true);
    std::ostringstream out;
    out.imbue(varnel::test::commaLocale());
    tree.putToStream(out, true);
    EXPECT_NE(out.str().find("<R a=\"1.5\" b=\"1e+300\" c=\"1234567\">1234567.5<X>2.25</X></R>"),
              std::string::npos);
}
