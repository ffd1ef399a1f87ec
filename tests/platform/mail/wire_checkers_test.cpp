// SPDX-License-Identifier: GPL-3.0-or-later
// A corpus of messages, checked by other programs: a spam filter and a MIME reader.
#include <QSet>
#include <QTemporaryDir>

#include "platform/mail/dkim_support.h"
#include "platform/mail/hostile_values.h"
#include "platform/mail/wire_reader.h"
#include "support/WholeText.h"

namespace wire_checkers_test {

using namespace compose;

namespace {

class WireCheckers : public ::testing::Test {
  protected:
    // Each kind of value in every field, alone and with images and attachments
    QByteArrayList corpus() {
        mail::Composer composer;
        QByteArrayList messages;
        const QString logo = makeFile(m_folder.filePath("logo.png"), pngContent(3000));
        const QString file = makeFile(m_folder.filePath("a.bin"), QByteArray(5000, '\x03') + "\r\n.\r\n");
        for (const ValueKind& kind : valueKinds()) {
            auto message = plainMessage();
            message.ToName = message.FromName = message.Subject = kind.value;
            message.BodyText = "Buongiorno, " + kind.value;
            message.BodyHtml = "<html><head></head><body><p>Buongiorno, " + kind.value + "</p></body></html>";
            messages += wholeOf(composer.compose(message).value().text);
            message.TemplateHtml = "<img src='" + logo + "'>";
            message.BodyHtml.replace("</body>", message.TemplateHtml + "</body>");
            message.Attachments = {{file, "a" + kind.value.left(100) + ".pdf"}, {logo, "logo.png"}};
            messages += wholeOf(composer.compose(message).value().text);
        }
        return messages;
    }

    QTemporaryDir m_folder;
};

TEST_F(WireCheckers, SpamFilterSeesNothingMalformed) {
    QByteArray all;
    const QByteArrayList messages = corpus();
    for (const QByteArray& message : messages)
        all += QByteArray::number(message.size()) + '\n' + message;
    const QByteArrayList hits = run("perl", {TEST_DATA_DIR "/../platform/mail/check_spam.pl",
                                             makeFile(m_folder.filePath("messages"), all), m_folder.path()})
                                    .chopped(1)
                                    .split('\n');
    ASSERT_EQ(hits.size(), messages.size());
    // The other rules are about the route of a message, which was not sent, and the amount of its text.
    static const QSet<QByteArray> harmless = {
        "NO_RECEIVED",          "NO_RELAYS",          "HTML_MESSAGE",       "LIST_PARTIAL_SHORT_MSG",
        "TVD_SPACE_RATIO",      "HTML_IMAGE_ONLY_04", "HTML_IMAGE_ONLY_32", "HTML_SHORT_LINK_IMG_1",
        "TO_NO_BRKTS_HTML_IMG", "WEIRD_QUOTING",      "T_HK_NAME_FROM"};
    for (qsizetype i = 0; i < hits.size(); ++i) {
        SCOPED_TRACE(valueKinds()[i / 2].name);
        EXPECT_TRUE(hits[i].contains("NO_RECEIVED")) << "nothing was checked";
        for (const QByteArray& rule : hits[i].split(' '))
            EXPECT_TRUE(harmless.contains(rule)) << rule.toStdString() << '\n'
                                                 << messages[i].left(3000).toStdString();
    }
}

TEST_F(WireCheckers, SpamFilterSeesWhatIsMalformed) {
    QByteArray bad = corpus().first();
    bad.replace("MIME-Version: 1.0\r\n", "").replace("Date: ", "Date: x").replace("Message-ID: ", "X: ");
    const QByteArray hits =
        run("perl", {TEST_DATA_DIR "/../platform/mail/check_spam.pl",
                     makeFile(m_folder.filePath("bad"), QByteArray::number(bad.size()) + '\n' + bad),
                     m_folder.path()});
    for (const char* rule : {"INVALID_DATE", "MISSING_MID"})
        EXPECT_TRUE(hits.contains(rule)) << hits.toStdString();
}

// Reads the program's output of one section
TEST_F(WireCheckers, MimeReaderFindsEachPartWhole) {
    for (const QByteArray& message : corpus()) {
        const wire::Message read = wire::read(message);
        QByteArrayList leaves;  // "1.1.2" and so on, of the sections that contain no others
        const QByteArrayList sections = run("reformime", {}, message).trimmed().split('\n');
        for (const QByteArray& section : sections) {
            const bool holdsOthers =
                std::any_of(sections.begin(), sections.end(),
                            [&](const QByteArray& other) { return other.startsWith(section + '.'); });
            if (!holdsOthers) leaves += section;
        }
        ASSERT_EQ(static_cast<std::size_t>(leaves.size()), read.leaves.size());
        for (qsizetype i = 0; i < leaves.size(); ++i) {
            const wire::Leaf& leaf = read.leaves[static_cast<std::size_t>(i)];
            const QString section = QString::fromLatin1(leaves[i]);
            const QByteArray told = run("reformime", {"-i", "-s", section}, message);
            EXPECT_TRUE(told.contains("content-type: " + leaf.type + '\n')) << told.toStdString();
            QByteArray content = run("reformime", {"-e", "-s", section}, message);
            if (leaf.type.startsWith("text/")) content.replace("\r\n", "\n").replace('\n', "\r\n");
            EXPECT_EQ(content.toStdString(), leaf.content.toStdString());
        }
    }
}

}  // namespace

}  // namespace wire_checkers_test
