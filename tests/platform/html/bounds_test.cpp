// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "platform/html/Bounds.h"
#include "platform/html/HtmlDocument.h"

namespace bounds_test {

namespace {

QString nested(const QString& tag, int depth) {
    return ('<' + tag + '>').repeated(depth) + 'x' + ("</" + tag + '>').repeated(depth);
}

// html and body are elements too
constexpr int mostDivs = html::mostDepth - 2;

void expectRefused(const QString& html, const char* reason) {
    HtmlDocument document;
    ASSERT_TRUE(document.setDocumentHTML("<p>uno</p>").ok());
    const QString before = document.documentHTML();
    const Status set = document.setDocumentHTML(html);
    EXPECT_EQ(set.code(), ErrorCode::Overflow);
    EXPECT_TRUE(set.text().contains(QString::fromUtf8(reason))) << set.text().toStdString();
    EXPECT_EQ(document.documentHTML(), before);
    EXPECT_EQ(document.bodyInnerText(), QString("uno"));
    EXPECT_EQ(html::readable(html).text(), set.text());
}

void expectTaken(const QString& html) {
    HtmlDocument document;
    const Status set = document.setDocumentHTML(html);
    ASSERT_TRUE(set.ok()) << html.left(100).toStdString() << ": " << set.text().toStdString();
    EXPECT_TRUE(html::readable(html).ok());
    const QString normal = document.documentHTML();
    ASSERT_TRUE(document.setDocumentHTML(normal).ok());
    EXPECT_EQ(document.documentHTML(), normal);
}

TEST(Bounds, ABodyIsTakenUpToTheGreatestDepth) {
    expectTaken(nested("div", mostDivs));
    expectRefused(nested("div", mostDivs + 1), "uno dentro l'altro");
    expectTaken(nested("span", mostDivs));
    expectRefused(nested("span", mostDivs + 1), "uno dentro l'altro");
}

TEST(Bounds, ADeepBodyIsRefusedWhateverMakesItDeep) {
    for (const char* unit : {"<div>", "<ul><li>", "<table><tr><td>", "<o:p>", "<b><div></b>", "<svg><g>",
                             "<select><option></select><x>", "<table><tr><td></div><div>", "<template>",
                             "<button><table><td>", "<svg><desc><div>", "<p><x></p><x>"})
        expectRefused(QString(unit).repeated(100000), "uno dentro l'altro");
    QString formatting, returning;
    for (int i = 0; i < 50000; ++i) {
        formatting += QString("<b id=%1>").arg(i);
        returning += QString("<p><font color=%1></p>").arg(i);
    }
    expectRefused(formatting, "uno dentro l'altro");
    expectRefused(returning, "uno dentro l'altro");
}

TEST(Bounds, ALargeBodyIsRefused) {
    expectTaken("<p>" + QString(html::mostCharacters / 8, 'x') + "</p>");
    EXPECT_TRUE(html::boundSize(html::mostCharacters).ok());
    expectRefused(QString(html::mostCharacters + 1, 'x'), "troppo grande");
}

TEST(Bounds, ABodyOfTooManyElementsIsRefused) {
    expectRefused(QString("<br>").repeated(html::mostElements + 1), "troppi elementi (");
}

TEST(Bounds, AnElementOfTooManyAttributesIsRefused) {
    QString attributes, bodies;
    for (int i = 0; i < html::mostAttributes; ++i) {
        attributes += QString(" a%1=1").arg(i);
        bodies += QString("<body a%1=1>").arg(i);
    }
    expectTaken("<p" + attributes + ">x</p>");
    expectRefused("<p" + attributes + " b=1>x</p>", "troppi attributi");
    expectRefused("<html b>" + bodies, "troppi attributi");
}

TEST(Bounds, ABodyThatGrowsWithTheSquareOfItsTextIsRefused) {
    QString html = "<p>";
    for (int i = 0; i < 400; ++i)
        html += QString("<font color=%1>").arg(i);
    expectRefused(html + QString("<p>x").repeated(200000), "troppo intricato");
}

TEST(Bounds, LooseWritingIsNoDepth) {
    for (const char* unit :
         {"<p>x", "<P ALIGN=left>x<BR>", "<li>x", "<p><font size=2>x</p>",

          "<b><span>x</b>", "<p><b>x</p>", "<dt>x<dd>y", "<h1>x<h2>y", "<a href=x>y", "<img src=x><hr>",
          "<form>x", "<option>x", "<button>x", "<nobr>x", "<div>x</div></div>", "<p><o:p></o:p></p>",
          "<svg><path d='' /><circle/></svg>", "<center><table><tr><td>x<td>y</table></center>", "<body>x"})
        expectTaken(QString(unit).repeated(5000));
    expectTaken("<table>" + QString("<tr><td><font face=Verdana>x<td>y").repeated(5000));
    expectTaken("<table>" + QString("<tbody><tr><th>x<tr><td>y").repeated(5000));
    expectTaken("<ul>" + QString("<li><p>x<li>y").repeated(5000));
    expectTaken("<select>" + QString("<optgroup><option>x<option>y").repeated(5000));
    expectTaken(QString("<table><tr><td>x").repeated(100));
}

TEST(Bounds, WhatClosesAListOrADrawingAddsNoDepth) {
    for (const char* unit :
         {"<select><option>x<input>", "<select><option>x<textarea>y</textarea>", "<select><option>x<select>",
          "<svg><g><g><p>x</p>", "<p><b>x</p></b>", "<p><b><b><b><b>x</p>"})
        expectTaken(QString(unit).repeated(5000));
    expectTaken("<table>" + QString("<tr><td><select><option>x").repeated(5000));
}

}  // namespace

}  // namespace bounds_test
