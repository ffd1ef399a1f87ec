// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <array>
#include <QDir>
#include <QFile>
#include <random>
#include <string>
#include <vector>

#include "platform/html/HtmlTokens.h"

namespace tokens_test {

namespace {

using html::HtmlTokens;

/// What a reader of attributes and raw texts sees: each tag with attributes and each raw text, with its
/// place.
std::vector<std::string> seen(std::string_view text, bool skipping) {
    std::vector<std::string> all;
    HtmlTokens tokens(text);
    const auto next = [&] {
        if (skipping) tokens.skipBare();
        return tokens.next();
    };
    for (auto kind = next(); kind != HtmlTokens::Kind::End; kind = next()) {
        const auto place = [&](std::string_view part) {
            return std::to_string(part.data() - text.data()) + ' ' + std::string(part);
        };
        if (kind == HtmlTokens::Kind::RawText)
            all.push_back("raw " + place(tokens.text()));
        else if (kind == HtmlTokens::Kind::Tag && tokens.tag().attributeCount > 0)
            all.push_back("tag " + place(tokens.tag().name) + place(tokens.tag().attributes));
    }
    return all;
}

TEST(HtmlTokens, SkippingBareTagsLosesNoAttributeAndNoRawText) {
    constexpr std::array pieces = {
        "<p>",        "</p>",    "<b>",      "</B>",       "<p/>",  "<p >",   "<p",      ">",
        "<",          "<<",      "</",       "</>",        "</ p>", "<1>",    "<h1>",    "<a href=x>",
        "<td x>",     "</td x>", "<style>",  "</style>",   "</sty", "<STYLE", "<script", "<script>",
        "</script >", "<title>", "</Title>", "<textarea>", "<!--",  "-->",    "--!>",    "<!x>",
        "<?y>",       "testo",   " ",        "\n",         "\"",    "=",      "a<b",     "\xC3\xA8"};
    std::mt19937 random(42);
    for (int round = 0; round < 50000; ++round) {
        std::string text;
        for (auto left = random() % 14; left > 0; --left)
            text += pieces[random() % pieces.size()];
        ASSERT_EQ(seen(text, true), seen(text, false)) << text;
    }
}

TEST(HtmlTokens, SkippingBareTagsLosesNothingOfANewsletter) {
    const QDir folder(QStringLiteral(TEST_DATA_DIR "/html"));
    const QStringList names = folder.entryList({"*.html"}, QDir::Files);
    ASSERT_FALSE(names.isEmpty());
    for (const QString& name : names) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const std::string text = file.readAll().toStdString();
        EXPECT_EQ(seen(text, true), seen(text, false)) << name.toStdString();
    }
}

TEST(HtmlTokens, SkippingStopsInFrontOfTheNextTagThatMeansSomething) {
    HtmlTokens tokens("uno<p>due</p><b>tre<a href=x>quattro</a><style>s</style>");
    tokens.skipBare();
    ASSERT_EQ(tokens.next(), HtmlTokens::Kind::Tag);
    EXPECT_EQ(tokens.tag().href, "x");
    tokens.skipBare();
    ASSERT_EQ(tokens.next(), HtmlTokens::Kind::Tag);
    EXPECT_EQ(tokens.tag().name, "style");
    tokens.skipBare();
    ASSERT_EQ(tokens.next(), HtmlTokens::Kind::RawText);
    EXPECT_EQ(tokens.text(), "s");
}

}  // namespace

}  // namespace tokens_test
