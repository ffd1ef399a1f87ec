// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "platform/html/HtmlDocument.h"

namespace inner_text_test {

namespace {

// The visible text with line ends as "\n" and U+00A0 as it is
void expectText(const QString& html, const QString& expected) {
    HtmlDocument document;
    if (!document.setDocumentHTML(html).ok()) qFatal("the text is refused");
    QString text = document.bodyInnerText();
    EXPECT_EQ(text.count('\n'), text.count("\r\n"));
    EXPECT_EQ(text.count('\r'), text.count("\r\n"));
    text.replace("\r\n", "\n");
    EXPECT_EQ(text.toStdString(), expected.toStdString()) << html.toStdString();
}

TEST(InnerText, BlocksAreOnTheirOwnLines) {
    expectText("a<div>b</div>c", "a\nb\nc");
    expectText("<div><div>a</div></div><div>b</div>", "a\nb");
    expectText("<h1>a</h1><h2>b</h2><center>c</center><address>d</address>", "a\nb\nc\nd");
    expectText("a<hr>b", "a\nb");
}

TEST(InnerText, ParagraphsHaveABlankLineAround) {
    expectText("<p>a</p><p>b</p>", "a\n\nb");
    expectText("a<p>b</p>c", "a\n\nb\n\nc");
    expectText("<p>a</p><div>b</div>", "a\n\nb");
    expectText("<p></p><p>a</p><p></p>", "a");
}

TEST(InnerText, LineBreakElementAlwaysCounts) {
    expectText("a<br>b", "a\nb");
    expectText("a <br> b", "a\nb");
    expectText("a<br><br>b", "a\n\nb");
    expectText("<br>a", "\na");
    expectText("<div>a<br></div>b", "a\n\nb");
}

TEST(InnerText, TableCellsAreSeparatedByTabsAndRowsByLineEnds) {
    expectText("<table><tr><td>a<td>b<tr><th>c<td>d</table>", "a\tb\nc\td");
    expectText("x<table><tr><td>a</table>y", "x\na\ny");
    expectText("<table><caption>t</caption><thead><tr><td>a</thead><tbody><tr><td>b</table>", "t\na\nb");
    expectText("<table> <tr> <td> a </td> <td> b </td> </tr> </table>", "a\tb");
}

TEST(InnerText, NestedTablesCountTheirOwnRowsAndCells) {
    expectText("<table><tr><td><table><tr><td>a<td>b<tr><td>c</table><td>d<tr><td>e</table>",
               "a\tb\nc\n\td\ne");
}

TEST(InnerText, ListItemsAreOnTheirOwnLines) {
    expectText("<ul><li>a<li>b<ol><li>c</ol></ul>", "a\nb\nc");
    expectText("<dl><dt>a<dd>b</dl>", "a\nb");
    expectText("<select><option>a<option>b</select>", "a\nb");
}

TEST(InnerText, BlanksCollapse) {
    expectText("  a \n\t b  ", "a b");
    expectText("<b>a </b> <i> b</i>", "a b");
    expectText("<div> a </div> <div> b </div>", "a\nb");
    expectText("a<span> </span>b", "a b");
}

TEST(InnerText, NoBreakSpaceIsKept) {
    expectText("a&nbsp; &nbsp;b", QStringLiteral("a\u00A0 \u00A0b"));
    expectText("<p>&nbsp;</p>", QStringLiteral("\u00A0"));
}

TEST(InnerText, PreformattedTextKeepsBlanksAndLines) {
    expectText("x<pre>\na  b\n\n c</pre>y", "x\na  b\n\n c\ny");
    expectText("<textarea>a\n b</textarea>", "a\n b");
    expectText("<div style='white-space:pre'>a  b\nc<span style='white-space: normal'> d  e</span></div>",
               "a  b\nc d e");
    expectText("<div style='white-space:pre-line'>a  b \n c</div>", "a b\nc");
}

TEST(InnerText, ReferencesAreDecoded) {
    expectText("&lt;a&gt; &amp; &egrave; &quot;", QStringLiteral("<a> & è \""));
}

TEST(InnerText, HiddenContentIsLeftOut) {
    expectText("<head><title>t</title><style>s</style></head><body>x<script>y</script><style>z</style>", "x");
    expectText(
        "x<template>a</template><iframe>b</iframe><noembed>c</noembed><video>d</video><audio>e</audio>", "x");
    expectText("x<div hidden>y</div><datalist><option>z</datalist><canvas>w</canvas>", "x");
    expectText("x<div style='display:none'>y<p style='display:block'>z</p></div>", "x");
    expectText("x<div style='color:red; DISPLAY : None !important'>y</div>", "x");
    expectText("x<!-- y -->", "x");
    expectText("x<svg><title>y</title><style>z</style></svg>", "x");
}

TEST(InnerText, InvisibleContentIsLeftOutUnlessMadeVisibleAgain) {
    expectText("a<span style='visibility:hidden'>b<b>c</b><i style='visibility:visible'>d</i></span>e",
               "ade");
}

TEST(InnerText, InlineStyleChangesTheBox) {
    expectText("a<span style='display:block'>b</span>c", "a\nb\nc");
    expectText("<div style='display:inline'>a</div><div style='display:inline-block'>b</div>", "ab");
    expectText(
        "<div style='display:table'><div style='display:table-row'><div style='display:table-cell'>a</div>"
        "<div style='display:table-cell'>b</div></div></div>",
        "a\tb");
}

TEST(InnerText, NoscriptIsVisibleSinceScriptsAreOff) {
    expectText("<noscript><b>x</b></noscript>", "x");
}

TEST(InnerText, ImagesAndInputsHaveNoText) {
    expectText("a<img src=x alt=y title=z>b<input value=w>c", "abc");
}

TEST(InnerText, PlaceholdersStayIntact) {
    expectText("<p style='text-transform:uppercase'>Gentile :::nom:::</p><b>:::campo1:::</b>:::email:::",
               "Gentile :::nom:::\n\n:::campo1::::::email:::");
}

TEST(InnerText, FrameSetHasNoBodyText) {
    expectText("<frameset><noframes>x</noframes></frameset>", "");
}

TEST(InnerText, TextAfterTheEndBelongsToTheBody) {
    expectText("<body>a</body></html>b", "ab");
}

TEST(InnerText, CharactersOutsideTheBasicPlaneSurvive) {
    expectText(QStringLiteral("<b>👍</b> ok"), QStringLiteral("👍 ok"));
}

TEST(InnerText, DeepNestingKeepsTheText) {
    expectText(QString("<blockquote>").repeated(400) + "x", "x");
}

}  // namespace

}  // namespace inner_text_test
