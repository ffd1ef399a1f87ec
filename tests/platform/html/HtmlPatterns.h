// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>
#include <QByteArray>
#include <vector>

/// Texts that are short to write and may be expensive to read: each repeats its pattern as often as is
/// asked.
struct HtmlPattern {
    const char* name;
    std::function<QByteArray(int)> text;  ///< with so many repetitions
};

inline std::vector<HtmlPattern> htmlPatterns() {
    const auto repeated = [](const char* unit, const char* before = "", const char* after = "") {
        return [=](int times) { return before + QByteArray(unit).repeated(times) + after; };
    };
    const auto numbered = [](const char* left, const char* right, const char* before = "",
                             const char* after = "") {
        return [=](int times) {
            QByteArray text(before);
            for (int i = 0; i < times; ++i)
                text += left + QByteArray::number(i) + right;
            return text + after;
        };
    };
    return {
        {"comments", repeated("<!-- x -->")},
        {"comments without an end", repeated("<!-- x --!")},
        {"dashes in a comment", repeated("--!", "<!--")},
        {"declarations", repeated("<!x>")},
        {"angle brackets", repeated("<")},
        {"open tags of one letter", repeated("<a ")},
        {"quotes without an end", repeated("<p a='")},
        {"text", repeated("abc ")},
        {"blanks", repeated(" ", "<body>x", "x")},
        {"line ends", repeated("\r\n", "<pre>")},
        {"character references", repeated("&amp;&#8364;&nbsp;")},
        {"broken references", repeated("&#x&a")},
        {"not ANSI", repeated("\xE2\x82\xAC\xF0\x9F\x91\x8D\xC4\x80")},
        {"broken UTF-8", repeated("\xFF\xC4")},
        {"paragraphs", repeated("<p>x")},
        {"line breaks", repeated("<br>")},
        {"end tags alone", repeated("</b></div></p>")},
        {"crossed formatting", repeated("<b><i></b></i>")},
        {"formatting in paragraphs", repeated("<p><b></p>")},
        {"formatting in blocks", repeated("<font size=2><div>x</font></div>")},
        {"links", repeated("<a href=http://esempio.it/x>y</a>")},
        {"links of their own", numbered("<a href=http://esempio.it/", ">y</a>")},
        {"links without an end", repeated("<a href=http://esempio.it/x>y")},
        {"images", repeated("<img src=/x.png alt=y>")},
        {"styles with images", repeated("<p style='background:url(/x.png)'>x</p>")},
        {"one style with images", repeated("url(/x.png) ", "<style>p{background:", "}</style>")},
        {"images without an end", repeated("url(/x", "<style>p{background:", "}</style>")},
        {"a style of many rules", repeated("color:red;", "<p style='display:none;", "'>x</p>")},
        {"raw text", repeated("<style>x</style>")},
        {"raw text without an end", repeated("</styl <", "<style>")},
        {"a text area", repeated("</text", "<textarea>")},
        {"a script with a comment", repeated("<script></script", "<script><!--")},
        {"declared encodings",
         repeated("<meta charset=x><meta http-equiv=content-type content='a;charset=b'>")},
        {"rows", repeated("<tr><td>x", "<table>")},
        {"tables", repeated("<table><tr><td>x</table>")},
        {"what no table holds", repeated("<i>x</i>", "<table>")},
        {"lists", repeated("<li>x", "<ul>")},
        {"options", repeated("<option>x", "<select>")},
        {"forms", repeated("x</form><form>")},
        {"drawings", repeated("<svg><path d=x /></svg>")},
        {"drawings with text", repeated("<svg><text>x</text><![CDATA[x]]></svg>")},
        {"a long attribute", repeated("abc ", "<p title='", "'>x</p>")},
        {"a long name", repeated("abc", "<", ">")},
        {"long names", repeated("<abcdefghijklmnopqrstuvwxyzabcdefghijklmnopqrstuvwxyz></abcdefghijklm>")},
        {"attributes", numbered(" a", "=1", "<p", ">x</p>")},
        {"attributes of the body", numbered("<body a", "=1>")},
        {"nested blocks", repeated("<div>")},
        {"nested lists", repeated("<ul><li>")},
        {"nested tables", repeated("<table><tr><td>")},
        {"nested formatting", numbered("<b id=", ">")},
        {"formatting that comes back", numbered("<p><font size=", "></p>")},
        {"blocks in formatting", repeated("<b><div></b>")},
        {"unknown elements", repeated("<o:p><x>")},
        {"nested drawings", repeated("<svg><g>")},
    };
}
