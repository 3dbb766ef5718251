#include "common/tamfx/XmlException.h"

#include "common/tamfx/HeapCount.h"
#include "common/tamfx/NodeList.h"
#include "common/tamfx/TestFolder.h"
#include "common/tamfx/XmlDocument.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

using PANFx::Testing::HeapCount;
using PANFx::Testing::TestFolder;
using TAMFx::Common::Xml::NodeList;
using TAMFx::Common::Xml::XmlDocument;
using TAMFx::Common::Xml::XmlException;

namespace {

/** Message for a file of this content, "" when it loads. */
std::string faultOf(const std::string& content)
{
    static const TestFolder folder;
    const std::string path = folder.write("page.resource", content);
    XmlDocument document;
    try {
        return document.LoadXMLFile(path.c_str()) ? "" : "not read";
    } catch (XmlException* exception) {
        EXPECT_EQ(document.getChildNodeSize(), 0);
        EXPECT_EQ(document.getNodeListByName("a"), nullptr);
        return exception->GetMessage();
    }
}

/** "line L, column C" of the message. */
std::string placeOf(const std::string& content)
{
    const std::string fault = faultOf(content);
    const std::string front = "page.resource: ";
    if (fault.rfind(front, 0) != 0)
        return "no place in: " + fault;
    return fault.substr(front.size(), fault.find(": ", front.size()) - front.size());
}

/** The text in 16-bit units, surrogates included, with a byte-order mark. */
std::string utf16(const std::u16string& text, bool bigEndian)
{
    std::string bytes;
    for (const char16_t unit : u"\xFEFF" + text) {
        const char high = static_cast<char>(unit >> 8);
        const char low = static_cast<char>(unit & 0xFF);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

std::string utf32(const std::u32string& text, bool bigEndian)
{
    std::string bytes;
    for (const char32_t unit : U"\xFEFF" + text) {
        for (int i = 0; i < 4; ++i)
            bytes += static_cast<char>((unit >> (bigEndian ? 24 - 8 * i : 8 * i)) & 0xFF);
    }
    return bytes;
}

std::string nested(int levels)
{
    std::string content;
    for (int i = 0; i < levels; ++i)
        content += "<n>";
    for (int i = 0; i < levels; ++i)
        content += "</n>";
    return content;
}

const std::string sample = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
                           "<!DOCTYPE layout [<!ENTITY b 'bbb'>]>\n"
                           "<!-- \xED\x95\x9C -->\n"
                           "<layout>\n"
                           "  <Base><background> bg.png </background></Base>\n"
                           "  <Components n=\"1\" m='&lt;&#xAC00;&b; & '>\n"
                           "    <label><![CDATA[a < b]]></label><?pi data?>\n"
                           "    <button title=\"\xED\x95\x9C\xEA\xB8\x80\"/>\n"
                           "    text &amp; more\n"
                           "  </Components>\n"
                           "</layout>";

} // namespace

TEST(XmlExceptionTest, NamesFileLineColumnAndFault)
{
    EXPECT_EQ(faultOf("<a>\n  <b x='1' x='2'/>\n</a>"),
              "page.resource: line 2, column 12: attribute \"x\" given twice");
}

TEST(XmlExceptionTest, DoesNotTellTheDirectory)
{
    EXPECT_EQ(faultOf("<a>").find('/'), std::string::npos);
}

TEST(XmlExceptionTest, HasTheLineAsItsNumber)
{
    const TestFolder folder;
    const std::string path = folder.write("a", "<a>\n\n<b/>\n</a><c/>");
    try {
        XmlDocument().LoadXMLFile(path.c_str());
        FAIL() << "nothing thrown";
    } catch (XmlException* exception) {
        EXPECT_EQ(exception->GetCode(), 4);
    }
}

TEST(XmlExceptionTest, IsThrownForAnEmptyFile)
{
    EXPECT_EQ(faultOf(""), "page.resource: line 1, column 1: no root element");
    EXPECT_EQ(placeOf("\xEF\xBB\xBF"), "line 1, column 1");
}

TEST(XmlExceptionTest, IsThrownForAFileWithoutARootElement)
{
    EXPECT_EQ(faultOf("\n<!-- nothing -->\n"), "page.resource: line 3, column 1: no root element");
    EXPECT_EQ(placeOf("<?xml version='1.0'?>"), "line 1, column 22");
}

TEST(XmlExceptionTest, IsThrownForASecondRootElement)
{
    EXPECT_EQ(faultOf("<a/>\n <b/>"), "page.resource: line 2, column 2: second root element");
    EXPECT_EQ(placeOf("<a><c/></a><!-- -->\n<a></a>"), "line 2, column 1");
}

TEST(XmlExceptionTest, IsThrownForTextOutsideTheRootElement)
{
    EXPECT_EQ(faultOf("<a/>\n\n  text"),
              "page.resource: line 3, column 3: text outside the root element");
    EXPECT_EQ(placeOf("text<a/>"), "line 1, column 1");
    EXPECT_EQ(placeOf("\xEF\xBB\xBF  \xED\x95\x9C<a/>"), "line 1, column 3");
    EXPECT_EQ(placeOf("<a/><![CDATA[text]]>"), "line 1, column 5");
    EXPECT_EQ(placeOf("<a/>\n<![CDATA[]]>"), "line 2, column 1");
    EXPECT_EQ(placeOf("<a/> &#32;"), "line 1, column 6");
    EXPECT_EQ(placeOf("<a/>\r\n\r\nx"), "line 3, column 1");
}

TEST(XmlExceptionTest, IsNotThrownForWhatMayStandOutsideTheRootElement)
{
    EXPECT_EQ(faultOf("\r\n <?pi?><!-- --> <!DOCTYPE a> <a/> \t\n<!-- --><?pi data?>\n "), "");
}

TEST(XmlExceptionTest, IsThrownForAnAttributeGivenTwice)
{
    EXPECT_EQ(placeOf("<a><b\n x='1'\n y='2'\n x='1'/></a>"), "line 4, column 2");
    EXPECT_EQ(placeOf("<a x='&amp;&amp;&amp;' y='\xED\x95\x9C' x=''/>"), "line 1, column 30");
    EXPECT_EQ(faultOf("<a x='1' X='2'><b x='3'/></a>"), "");
}

TEST(XmlExceptionTest, IsThrownForAnAttributeGivenTwiceAmongMany)
{
    std::string content = "<a ";
    for (int i = 0; i < 100; ++i)
        content += "a" + std::to_string(i) + "='' ";
    EXPECT_EQ(faultOf(content + "/>"), "");
    EXPECT_EQ(faultOf(content + "\na99=''/>"),
              "page.resource: line 2, column 1: attribute \"a99\" given twice");
}

TEST(XmlExceptionTest, IsThrownForElementsNestedTooDeep)
{
    EXPECT_EQ(faultOf(nested(256)), "");
    EXPECT_EQ(faultOf(nested(257)),
              "page.resource: line 1, column 769: elements nested deeper than 256");
    EXPECT_EQ(faultOf("<a>" + nested(255) + "\n<b>" + nested(254) + "</b></a>"), "");
    EXPECT_EQ(placeOf("<a>" + nested(255) + "\n<b>" + nested(255) + "</b></a>"),
              "line 2, column 766");
}

TEST(XmlExceptionTest, IsThrownForAHundredThousandLevels)
{
    const std::string content = nested(100000);
    EXPECT_EQ(placeOf(content), "line 1, column 769");
    EXPECT_EQ(faultOf(content.substr(0, content.size() / 2)).rfind("page.resource: line 1, ", 0),
              0u);
}

TEST(XmlExceptionTest, IsThrownForANulByte)
{
    using namespace std::string_literals;
    EXPECT_EQ(faultOf("<a/>\n\0<b/>"s), "page.resource: line 2, column 1: NUL character");
    EXPECT_EQ(faultOf("<a>\n te\0xt</a>"s), "page.resource: line 2, column 4: NUL character");
    EXPECT_EQ(placeOf("<a x='\0'/>"s), "line 1, column 7");
    EXPECT_EQ(placeOf("<a/>\0"s), "line 1, column 5");
    EXPECT_EQ(faultOf(utf16(u"<a>\n\0</a>"s, false)),
              "page.resource: line 2, column 1: NUL character");
}

TEST(XmlExceptionTest, IsThrownForWhatTheParserReports)
{
    for (const char* content : {"<",
                                "<a",
                                "<a>",
                                "</a>",
                                "<a></b>",
                                "<a><b></a></b>",
                                "<a x></a>",
                                "<a x=></a>",
                                "<a x=1></a>",
                                "<a x='1></a>",
                                "<a x='1'y='2'/>",
                                "<1a/>",
                                "< a/>",
                                "<a><!-- </a>",
                                "<a><![CDATA[</a>",
                                "<a><?pi</a>",
                                "<!DOCTYPE a",
                                "<a/",
                                "<a></a",
                                "<a/><"})
        EXPECT_EQ(faultOf(content).rfind("page.resource: line 1, column ", 0), 0u) << content;
}

TEST(XmlExceptionTest, TellsTheLineOfAnEndTagThatDoesNotFit)
{
    EXPECT_EQ(placeOf("<a>\n<b>\n</c>\n</a>").substr(0, 7), "line 3,");
    EXPECT_EQ(placeOf("<a>\r\n<b>\r\n</c>\r\n</a>").substr(0, 7), "line 3,");
    EXPECT_EQ(placeOf("<a>\r<b>\r</c>\r</a>").substr(0, 7), "line 3,");
}

TEST(XmlExceptionTest, CountsALineBreakOfTwoCharactersOnce)
{
    EXPECT_EQ(placeOf("<a>\r\n  <b x='1' x='2'/>\r\n</a>"), "line 2, column 12");
    EXPECT_EQ(placeOf("<a>\r  <b x='1' x='2'/>\r</a>"), "line 2, column 12");
}

TEST(XmlExceptionTest, CountsNoByteOrderMark)
{
    EXPECT_EQ(placeOf("\xEF\xBB\xBF<a x='1' x='2'/>"), "line 1, column 10");
}

TEST(XmlExceptionTest, CountsColumnsInCharacters)
{
    EXPECT_EQ(placeOf("<a y='\xED\x95\x9C\xEA\xB8\x80' x='1' x='2'/>"), "line 1, column 17");
    EXPECT_EQ(placeOf("<a y='\xF0\x9F\x98\x80' x='1' x='2'/>"), "line 1, column 16");
}

TEST(XmlExceptionTest, TellsTheSamePlaceInEveryEncoding)
{
    const std::u16string text = u"<a>\r\n<b y='\xD55C\xE4\xD83D\xDE00' x='1' x='2'/>\r\n</a>";
    const std::u32string wide = U"<a>\r\n<b y='\xD55C\xE4\x1F600' x='1' x='2'/>\r\n</a>";
    const std::string place = "line 2, column 18";
    EXPECT_EQ(placeOf("<a>\r\n<b y='\xED\x95\x9C\xC3\xA4\xF0\x9F\x98\x80' x='1' x='2'/>\r\n</a>"),
              place);
    EXPECT_EQ(placeOf(utf16(text, false)), place);
    EXPECT_EQ(placeOf(utf16(text, true)), place);
    EXPECT_EQ(placeOf(utf32(wide, false)), place);
    EXPECT_EQ(placeOf(utf32(wide, true)), place);
    EXPECT_EQ(placeOf("<?xml version='1.0' encoding='latin1'?>\n<b y='\xE4\xF6\xFC' x='1' x=''/>"),
              place);
}

TEST(XmlExceptionTest, TellsThePlaceBehindBrokenUtf16Too)
{
    using namespace std::string_literals;
    // lone surrogates have no character: the parser leaves them out, and so does the count
    EXPECT_EQ(placeOf(utf16(u"<a>\xDC00\xD800 \n</a>\n<b/>"s, false)), "line 3, column 1");
    EXPECT_EQ(placeOf(utf16(u"<a/>\n<b/>"s, false) + "x"), "line 2, column 1");
    EXPECT_EQ(placeOf(utf16(u"<a/>\n<b/>\xD83D"s, false)), "line 2, column 1");
}

TEST(XmlExceptionTest, IsThrownForAFileCutAtAnyByte)
{
    ASSERT_EQ(faultOf(sample), "");
    for (std::size_t size = 0; size < sample.size(); ++size) {
        EXPECT_EQ(faultOf(sample.substr(0, size)).rfind("page.resource: line ", 0), 0u)
            << "the first " << size << " bytes";
    }
}

TEST(XmlExceptionTest, IsTheWorstThatABrokenByteCanDo)
{
    EXPECT_NE(faultOf("<"), ""); // makes what stays for the next exception
    const auto before = HeapCount::pieces();
    int faults = 0;
    for (std::size_t i = 0; i < sample.size(); ++i) {
        for (const char byte : {'<', '>', '&', '"', '\0', '\xFF', ' '}) {
            std::string content = sample;
            content[i] = byte;
            faults += faultOf(content).empty() ? 0 : 1;
        }
    }
    EXPECT_GT(faults, 0);
    EXPECT_LT(faults, static_cast<int>(7 * sample.size()));
    EXPECT_LE(HeapCount::pieces(), before + 1); // at most a longer text of the last exception
}

TEST(XmlExceptionTest, LeavesADocumentThatLoadsAgain)
{
    const TestFolder folder;
    const std::string good = folder.write("good", "<r><a/></r>");
    const std::string bad = folder.write("bad", "<r><a/>");
    XmlDocument document;
    EXPECT_TRUE(document.LoadXMLFile(good.c_str()));
    EXPECT_THROW(document.LoadXMLFile(bad.c_str()), XmlException*);
    EXPECT_EQ(document.getNodeByName("a"), nullptr);
    EXPECT_TRUE(document.LoadXMLFile(good.c_str()));
    EXPECT_NE(document.getNodeByName("a"), nullptr);
}

TEST(XmlExceptionTest, TellsTheWholeNameOfAFileWithoutADirectory)
{
    XmlDocument document;
    const TestFolder folder;
    const std::string path = folder.write("a:b c.resource", "<a>");
    try {
        document.LoadXMLFile(path.c_str());
        FAIL() << "nothing thrown";
    } catch (XmlException* exception) {
        EXPECT_EQ(std::string(exception->GetMessage()).rfind("a:b c.resource: line 1, ", 0), 0u);
    }
}
