// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include "platform/html/HtmlDocument.h"

namespace corpus_test {

namespace {

// Newsletters as people really write and paste them, from all ages of the web
class Newsletter : public ::testing::TestWithParam<std::string> {
  protected:
    void SetUp() override {
        QFile file(QStringLiteral(TEST_DATA_DIR "/html/") + QString::fromStdString(GetParam()));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        m_source = QString::fromUtf8(file.readAll());
        if (!m_document.setDocumentHTML(m_source).ok()) qFatal("the text is refused");
    }

    QString m_source;
    HtmlDocument m_document;
};

TEST_P(Newsletter, NormalFormIsStable) {
    HtmlDocument again;
    if (!again.setDocumentHTML(m_document.documentHTML()).ok()) qFatal("the text is refused");
    EXPECT_EQ(again.documentHTML().toStdString(), m_document.documentHTML().toStdString());
    EXPECT_EQ(again.bodyInnerText().toStdString(), m_document.bodyInnerText().toStdString());
}

TEST_P(Newsletter, EveryPlaceholderSurvives) {
    static const QRegularExpression placeholder(QStringLiteral(":::[a-z]+[1-9]?:::"));
    EXPECT_EQ(m_document.documentHTML().count(placeholder), m_source.count(placeholder));
}

TEST_P(Newsletter, VisibleTextContainsNoMarkupAndOnlyWholeLineEnds) {
    const QString text = m_document.bodyInnerText();
    EXPECT_EQ(text.count('\n'), text.count("\r\n"));
    EXPECT_EQ(text.count('\r'), text.count("\r\n"));
    EXPECT_FALSE(text.contains("<td")) << text.toStdString();
    EXPECT_FALSE(text.contains("&nbsp;")) << text.toStdString();
    EXPECT_FALSE(text.contains("mso")) << text.toStdString();
}

std::vector<std::string> newsletters() {
    std::vector<std::string> names;
    for (const QString& name :
         QDir(QStringLiteral(TEST_DATA_DIR "/html")).entryList({"*.html"}, QDir::Files)) {
        names.push_back(name.toStdString());
    }
    return names;
}

INSTANTIATE_TEST_SUITE_P(Corpus, Newsletter, ::testing::ValuesIn(newsletters()), [](const auto& parameter) {
    return QString::fromStdString(parameter.param).section('.', 0, 0).replace('-', '_').toStdString();
});

TEST(NewsletterCorpus, IsThere) {
    EXPECT_GE(newsletters().size(), 25u);
}

}  // namespace

}  // namespace corpus_test
