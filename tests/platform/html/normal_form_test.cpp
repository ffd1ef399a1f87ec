// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "platform/html/HtmlDocument.h"

namespace normal_form_test {

namespace {

QString normalForm(const QString& html) {
    HtmlDocument document;
    if (!document.setDocumentHTML(html).ok()) qFatal("the text is refused");
    return document.documentHTML();
}

// The body of the normal form
QString body(const QString& html) {
    const QString before = QStringLiteral("<html><head></head><body>");
    const QString after = QStringLiteral("</body></html>");
    const QString normal = normalForm(html);
    if (!normal.startsWith(before) || !normal.endsWith(after)) return "unexpected frame: " + normal;
    return normal.mid(before.size(), normal.size() - before.size() - after.size());
}

::testing::Message shown(const QString& text) {
    return ::testing::Message() << text.toStdString();
}

void expectBody(const QString& html, const QString& expected) {
    EXPECT_TRUE(body(html) == expected) << shown(html) << "\ngives\n" << shown(body(html));
}

TEST(NormalForm, IsEmptyBeforeADocumentWasSet) {
    EXPECT_TRUE(HtmlDocument().documentHTML().isEmpty());
    EXPECT_TRUE(HtmlDocument().bodyInnerText().isEmpty());
}

TEST(NormalForm, EmptyTextIsAnEmptyDocument) {
    EXPECT_EQ(normalForm("").toStdString(), "<html><head></head><body></body></html>");
}

TEST(NormalForm, MissingTagsAreSupplied) {
    expectBody("<p>a<p>b", "<p>a</p><p>b</p>");
    expectBody("<ul><li>x<li>y</ul>", "<ul><li>x</li><li>y</li></ul>");
    expectBody("<table><tr><td>a<td>b</table>",
               "<table><tbody><tr><td>a</td><td>b</td></tr></tbody></table>");
}

TEST(NormalForm, WronglyNestedTagsAreRepaired) {
    expectBody("<b>a<i>b</b>c</i>", "<b>a<i>b</i></b><i>c</i>");
    expectBody("<table><b>x</b><tr><td>y</table>",
               "<b>x</b><table><tbody><tr><td>y</td></tr></tbody></table>");
}

TEST(NormalForm, TagAndAttributeNamesAreLowerCase) {
    expectBody("<P ALIGN=Center>x</P>", "<p align=\"Center\">x</p>");
    expectBody("<O:P Q=1></O:P>", "<o:p q=\"1\"></o:p>");
}

TEST(NormalForm, AttributesAreQuotedInTheirOrderAndTheFirstOfTwoCounts) {
    expectBody("<a name=x href='y' name=z disabled>k</a>", "<a name=\"x\" href=\"y\" disabled=\"\">k</a>");
}

TEST(NormalForm, AttributeValuesEscapeAmpersandQuoteAndNoBreakSpaceOnly) {
    expectBody("<a title='a&amp;b \" &lt;c> &nbsp;é'></a>",
               QStringLiteral("<a title=\"a&amp;b &quot; <c> &nbsp;é\"></a>"));
}

TEST(NormalForm, TextEscapesAmpersandAngleBracketsAndNoBreakSpaceOnly) {
    expectBody("a & b &lt; c > d \" ' &nbsp;&copy;", QStringLiteral("a &amp; b &lt; c &gt; d \" ' &nbsp;©"));
}

TEST(NormalForm, ReferencesBecomeTheirCharacters) {
    expectBody("&egrave;&#8364;&#x20AC;&euro;&hellip;", QStringLiteral("è€€€…"));
    expectBody("<a href='?a=1&copy=2&amp;b'></a>", "<a href=\"?a=1&amp;copy=2&amp;b\"></a>");
}

TEST(NormalForm, VoidElementsHaveNoEndTag) {
    expectBody("<br/><hr><img src=x></img><input><wbr>", "<br><hr><img src=\"x\"><input><wbr>");
    EXPECT_EQ(normalForm("<meta name=a><link href=b><base href=c><title>t</title>").toStdString(),
              "<html><head><meta name=\"a\"><link href=\"b\"><base href=\"c\"><title>t</title></head>"
              "<body></body></html>");
}

TEST(NormalForm, RawTextElementsAreNotEscaped) {
    for (const char* tag : {"script", "style", "xmp", "iframe", "noembed"}) {
        const QString text = QStringLiteral("x<%1>if (a<b && c>d)</%1>").arg(QString::fromLatin1(tag));
        expectBody(text, text);
    }
    EXPECT_EQ(normalForm("<frameset><noframes>a<b>&</noframes></frameset>").toStdString(),
              "<html><head></head><frameset><noframes>a<b>&</noframes></frameset></html>");
}

TEST(NormalForm, TitleAndTextAreaAreEscaped) {
    expectBody("x<textarea>a<b>&amp;</textarea>", "x<textarea>a&lt;b&gt;&amp;</textarea>");
}

TEST(NormalForm, NoscriptContainsElementsSinceScriptsAreOff) {
    expectBody("x<noscript><b>y</b>&amp;</noscript>", "x<noscript><b>y</b>&amp;</noscript>");
}

TEST(NormalForm, TemplateKeepsItsContent) {
    expectBody("x<template><tr><td>r</template>", "x<template><tr><td>r</td></tr></template>");
}

TEST(NormalForm, DoctypeKeepsItsIdentifiers) {
    EXPECT_TRUE(normalForm("<!doctype HTML>").startsWith("<!DOCTYPE html><html>"));
    const QString both =
        "<!DOCTYPE html PUBLIC \"-//W3C//DTD HTML 4.01//EN\" \"http://www.w3.org/TR/html4/s.dtd\">";
    EXPECT_TRUE(normalForm(both).startsWith(both + "<html>"));
    EXPECT_TRUE(normalForm("<!DOCTYPE html PUBLIC '-//A//B'>")
                    .startsWith("<!DOCTYPE html PUBLIC \"-//A//B\"><html>"));
    EXPECT_TRUE(
        normalForm("<!DOCTYPE html SYSTEM 'a\"b'>").startsWith("<!DOCTYPE html SYSTEM 'a\"b'><html>"));
}

TEST(NormalForm, CommentsStayInTheirPlaces) {
    EXPECT_EQ(
        normalForm(
            "<!DOCTYPE html><!--a--><html><!--b--><head><!--c--></head><body><!--d--></body></html><!--e-->")
            .toStdString(),
        "<!DOCTYPE html><!--a--><html><!--b--><head><!--c--></head><body><!--d--></body></html><!--e-->");
}

TEST(NormalForm, ConditionalCommentsAreKeptToTheLetter) {
    expectBody("x<!--[if mso]><table><tr><td width=\"5\"><![endif]-->y<!--[if !mso]><!-->z<!--<![endif]-->",
               "x<!--[if mso]><table><tr><td width=\"5\"><![endif]-->y<!--[if !mso]><!-->z<!--<![endif]-->");
    expectBody("x<![if !mso]>y<![endif]>", "x<!--[if !mso]-->y<!--[endif]-->");
    expectBody("x<?xml:namespace prefix = o />", "x<!--?xml:namespace prefix = o /-->");
}

TEST(NormalForm, FirstLineFeedOfAPreformattedBlockSurvives) {
    expectBody("<pre>\nx</pre>", "<pre>x</pre>");
    expectBody("<pre>\n\nx</pre>", "<pre>\n\nx</pre>");
    expectBody("<textarea>\n\nx</textarea>", "<textarea>\n\nx</textarea>");
    expectBody("<listing>\n\nx</listing>", "<listing>\n\nx</listing>");
}

TEST(NormalForm, ForeignNamesRegainTheirCase) {
    expectBody("<svg viewbox=0><foreignobject></foreignobject><lineargradient/></svg>",
               "<svg viewBox=\"0\"><foreignObject></foreignObject><linearGradient></linearGradient></svg>");
    expectBody("<svg><a xlink:href=x xml:lang=it xmlns:xlink=y xmlns=z></a></svg>",
               "<svg><a xlink:href=\"x\" xml:lang=\"it\" xmlns:xlink=\"y\" xmlns=\"z\"></a></svg>");
    expectBody("<math definitionurl=x><mi>y</mi></math>", "<math definitionURL=\"x\"><mi>y</mi></math>");
    expectBody("<svg><![CDATA[a<b]]></svg>", "<svg>a&lt;b</svg>");
}

TEST(NormalForm, EveryLineEndIsALineFeed) {
    expectBody("a\rb\r\nc\nd<pre>x\ry\r\nz</pre><img alt='a\r\nb'>",
               "a\nb\nc\nd<pre>x\ny\nz</pre><img alt=\"a\nb\">");
}

TEST(NormalForm, ByteOrderMarkIsNoText) {
    expectBody(QString(QChar::ByteOrderMark) + "<p>x", "<p>x</p>");
}

TEST(NormalForm, LoneSurrogatesDoNotBreakTheDocument) {
    EXPECT_TRUE(body(QString("a") + QChar(0xD800) + "b<p>c").endsWith("<p>c</p>"));
}

TEST(NormalForm, PlaceholdersSurviveInTextAttributesAndLinks) {
    expectBody("<a href=:::email::: title=':::nom::: e :::rgs:::' :::campo1:::>:::nom:::</a>",
               "<a href=\":::email:::\" title=\":::nom::: e :::rgs:::\" :::campo1:::=\"\">:::nom:::</a>");
    expectBody("<a href='mailto:x@y.it?subject=:::campo2:::&amp;body=:::nom:::'>k</a>",
               "<a href=\"mailto:x@y.it?subject=:::campo2:::&amp;body=:::nom:::\">k</a>");
}

TEST(NormalForm, TextBeforeTheEndOfAFormStaysInsideIt) {
    expectBody("<form>a\n</form>x", "<form>a\n</form>x");
    expectBody("<form><table></table>\n</FORM>x", "<form><table></table>\n</form>x");
    expectBody("<form><textarea>a </form>b</textarea></form>",
               "<form><textarea>a &lt;/form&gt;b</textarea></form>");
    expectBody("x<!-- a </form> --><p title='a </form>'>x</p>",
               "x<!-- a </form> --><p title=\"a </form>\">x</p>");
    expectBody("<xmp>a </form></xmp>", "<xmp>a </form></xmp>");
}

TEST(NormalForm, CharactersOutsideWindows1252AreReferences) {
    expectBody(QStringLiteral("<p title='Ω'>Ω ≈ 👍 è €</p>"),
               QStringLiteral("<p title=\"&#937;\">&#937; &#8776; &#128077; è €</p>"));
    expectBody(QStringLiteral("x<!-- Ω -->"), "x<!-- &#937; -->");
    expectBody("x<style>p:after { content: \"Ω>👍\" }</style>Ω",
               "x<style>p:after { content: \"\\3A9 >\\1F44D \" }</style>&#937;");
    expectBody("x<script>a='Ω👍'</script>Ω", "x<script>a='\\u03a9\\ud83d\\udc4d'</script>&#937;");
}

TEST(NormalForm, CharactersOutsideWindows1252StayTheSameWhenReadAgain) {
    const QString first = normalForm(QStringLiteral("<style>Ω</style><p title='Ω'>Ω<!-- Ω --><xmp>Ω</xmp>"));
    EXPECT_EQ(normalForm(first).toStdString(), first.toStdString());
}

TEST(NormalForm, BlanksAfterTheDocumentAreNotPartOfIt) {
    expectBody("<p>x</p>\r\n \r\n", "<p>x</p>");
    const QString first = normalForm("<html><body>x\n</body>\n</html>\r\n");
    EXPECT_EQ(normalForm(first + "\r\n").toStdString(), first.toStdString());
}

TEST(NormalForm, SecondDocumentReplacesTheFirst) {
    HtmlDocument document;
    if (!document.setDocumentHTML("<p>uno").ok()) qFatal("the text is refused");
    if (!document.setDocumentHTML("<i>due").ok()) qFatal("the text is refused");
    EXPECT_EQ(document.documentHTML().toStdString(), "<html><head></head><body><i>due</i></body></html>");
    EXPECT_EQ(document.bodyInnerText().toStdString(), "due");
}

TEST(NormalForm, DocumentThatTripsTheParserIsRefused) {
    HtmlDocument document;
    EXPECT_FALSE(document.setDocumentHTML("<table><math><mo></><![CDATA[a]]>:::nom:::").ok());
    expectBody("<p>x", "<p>x</p>");
}

TEST(NormalForm, LargeDocumentIsWhole) {
    const QString paragraph = QStringLiteral("<p class=\"x\">Ciao <b>:::nom:::</b>, perché no?</p>\n");
    const QString html = paragraph.repeated(60000);
    expectBody(html, html.trimmed());
}

}  // namespace

}  // namespace normal_form_test
