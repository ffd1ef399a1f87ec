// SPDX-License-Identifier: GPL-3.0-or-later
// Each kind of value in every field at once, with and without files, checked by every rule for messages.
#include <gtest/gtest.h>

#include <QSet>
#include <QTemporaryDir>

#include "platform/mail/compose_support.h"
#include "platform/mail/hostile_values.h"
#include "platform/mail/Unsubscribe.h"
#include "platform/mail/wire_reader.h"
#include "support/WholeText.h"

namespace wire_message_test {

using namespace compose;

namespace {

constexpr int messagesOfTheLoop = 400;
const QByteArray attachmentContent("\0\r\n.\r\nFrom x\xFF", 13);

// Line ends as sent
QString travelled(QString text) {
    text.replace("\r\n", "\n").replace('\r', '\n').replace('\n', "\r\n").replace(QChar(0), ' ');
    return QString::fromUtf8(text.toUtf8());
}

QString inOneLine(QString text) {
    for (QChar& c : text) {
        if (c.unicode() < 0x20 || (c.unicode() >= 0x7F && c.unicode() < 0xA0) || c == QChar(0x2028) ||
            c == QChar(0x2029))
            c = ' ';
    }
    return QString::fromUtf8(text.toUtf8());
}

class WireMessage : public ::testing::TestWithParam<bool> {
  protected:
    void SetUp() override {
        makeFile(m_folder.filePath("logo.png"), pngContent(5000));
        makeFile(m_folder.filePath("allegato"), attachmentContent);
        makeFile(m_folder.filePath("testo"), QByteArray("perch\xC3\xA9\r\n.\r\n"));
    }

    static bool withFiles() { return GetParam(); }

    void addFiles(mail::MessageData& message, const QString& name) const {
        message.TemplateHtml = "<img src='" + m_folder.filePath("logo.png") + "'>";
        message.BodyHtml += message.TemplateHtml;
        message.Attachments = {{m_folder.filePath("allegato"), "a" + name + ".pdf"},
                               {m_folder.filePath("testo"), "a" + name + ".txt"},
                               {m_folder.filePath("allegato"), name},
                               {m_folder.filePath("allegato"), "x.docx"}};
    }

    wire::Message check(const mail::MessageData& message) {
        const auto composed = m_composer.compose(message);
        EXPECT_TRUE(composed.ok()) << composed.status().text().toStdString();
        if (!composed.ok()) return {};
        const QByteArray data = wholeOf(composed.value().text);
        wire::Message read = wire::read(data);
        EXPECT_EQ(read.complaints.join("\n").toStdString(), "") << data.left(20000).toStdString();
        EXPECT_EQ('<' + read.messageId + '>', composed.value().messageId);
        EXPECT_FALSE(m_seen.contains(read.messageId));
        m_seen.insert(read.messageId);
        EXPECT_TRUE(composed.value().needsSmtputf8 || isAscii(data));
        expectValues(message, read);
        return read;
    }

    static bool isAscii(const QByteArray& data) {
        return std::all_of(data.begin(), data.end(), [](char c) { return (c & 0x80) == 0; });
    }

    static void expectValues(const mail::MessageData& sent, const wire::Message& read) {
        const auto nameOf = [](const QString& name) {
            // 1000 characters, and no half character
            const QString start = name.left(1000);
            return start.trimmed().isEmpty() || inOneLine(start).trimmed().isEmpty() ? QString()
                                                                                     : inOneLine(start);
        };
        EXPECT_EQ(read.subject.toStdString(), inOneLine(sent.Subject).toStdString());
        EXPECT_EQ(read.from.name.toStdString(), nameOf(sent.FromName).toStdString());
        EXPECT_EQ(read.to.name.toStdString(), nameOf(sent.ToName).toStdString());
        EXPECT_EQ(read.tree.toStdString(), treeOf(sent).toStdString());
        std::size_t next = 0;
        if (hasTextForm(sent)) {
            EXPECT_EQ(
                complaintAboutText(sent, QString::fromUtf8(read.leaves.at(next++).content)).toStdString(),
                "");
        }
        if (hasHtml(sent)) expectHtml(read.leaves.at(next++), sent);
        if (!sent.TemplateHtml.isEmpty()) {
            EXPECT_EQ(read.leaves.at(next).disposition, "inline");
            EXPECT_EQ(read.leaves.at(next++).content, pngContent(5000));
        }
        for (const auto& attachment : sent.Attachments.items()) {
            const wire::Leaf& leaf = read.leaves.at(next++);
            EXPECT_EQ(leaf.disposition, "attachment");
            EXPECT_EQ(leaf.content, attachment.path.endsWith("testo") ? QByteArray("perch\xC3\xA9\r\n.\r\n")
                                                                      : attachmentContent);
            QString name = inOneLine(attachment.name);
            name = name.mid(std::max(name.lastIndexOf('/'), name.lastIndexOf('\\')) + 1).trimmed();
            EXPECT_EQ(leaf.fileName.toStdString(),
                      name.isEmpty() ? leaf.fileName.toStdString() : name.toStdString());
        }
        EXPECT_EQ(read.leaves.size(), next);
    }

    static bool hasHtml(const mail::MessageData& message) {
        return !message.BodyHtml.toUtf8().trimmed().isEmpty();
    }
    static QByteArray treeOf(const mail::MessageData& message) {
        QByteArray tree = !hasHtml(message)      ? "text/plain"
                          : hasTextForm(message) ? "alternative(text/plain,text/html)"
                                                 : "text/html";
        if (!message.TemplateHtml.isEmpty()) tree = "related(" + tree + ",image/png)";
        if (message.Attachments.items().isEmpty()) return tree;
        tree = "mixed(" + tree;
        for (const auto& attachment : message.Attachments.items()) {
            const bool document = attachment.name.endsWith(".docx"), pdf = attachment.name.endsWith(".pdf");
            tree += pdf        ? ",application/pdf"
                    : document ? ",application/vnd.openxmlformats-officedocument.wordprocessingml.document"
                    : attachment.name.endsWith(".txt") ? ",text/plain"
                                                       : ",application/octet-stream";
        }
        return tree + ')';
    }

    static void expectHtml(const wire::Leaf& leaf, const mail::MessageData& sent) {
        QString read = QString::fromUtf8(leaf.content), html = travelled(sent.BodyHtml);
        if (!sent.TemplateHtml.isEmpty()) {
            // the image is named by its identifier, and nothing else has changed
            const qsizetype cid = read.lastIndexOf("cid:");
            EXPECT_GE(cid, 0);
            read.truncate(cid);
            html.truncate(html.lastIndexOf(sent.TemplateHtml) + 10);
        }
        html.replace("<meta charset=x>", "<meta charset=utf-8>");
        if (read.endsWith("\r\n") && !html.endsWith("\r\n")) read.chop(2);
        EXPECT_EQ(read.toStdString(), html.toStdString());
    }

    QTemporaryDir m_folder;
    mail::Composer m_composer;
    QSet<QByteArray> m_seen;
};

TEST_P(WireMessage, KeepsEveryRuleForEachKindOfValue) {
    for (const ValueKind& kind : valueKinds()) {
        SCOPED_TRACE(kind.name);
        auto message = plainMessage();
        message.FromName = message.ToName = message.Subject = message.BodyText = kind.value;
        message.BodyHtml = "<p>" + kind.value + "</p>";
        message.Priority = static_cast<int>(kind.value.size() % 6);
        message.UnsubscribeLink = kind.value;
        if (withFiles()) addFiles(message, kind.value.left(2000));
        check(message);
        message.UnsubscribeLink = "https://x.it/u?e=" + kind.value;
        message.BodyHtml = kind.value;
        message.TemplateHtml.clear();
        check(message);
        message.BodyText.clear();
        check(message);
        message.BodyText = kind.value;
        message.BodyHtml.clear();
        check(message);
    }
}

TEST_P(WireMessage, KeepsEveryRuleForEachAddress) {
    const QString longest =
        QString(64, 'a') + '@' + QString(60, 'b') + '.' + QString(60, 'c') + '.' + QString(60, 'd') + ".it";
    for (const QString& address :
         {QString("a@b.it"), QString("\"a b\"@example.it"), QString("o'neil+x/y=z@example.it"),
          QStringLiteral("info@caffè.example"), QStringLiteral("niccolò@caffè.example"),
          QString("a@[192.0.2.1]"), QString("a@[IPv6:2001:db8::1]"), longest,
          QStringLiteral("è").repeated(100) + "@example.it"}) {
        SCOPED_TRACE(address.toStdString());
        auto message = plainMessage();
        message.FromAddress = message.ToAddress = address;
        if (withFiles()) addFiles(message, "nome");
        check(message);
    }
}

TEST_P(WireMessage, KeepsEveryRuleForFuzzedValues) {
    HostileValues values(withFiles() ? 19991231 : 20000101);
    for (int i = 0; i < messagesOfTheLoop && !HasFailure(); ++i) {
        mail::MessageData message;
        message.FromAddress = values.address();
        message.ToAddress = values.address();
        message.FromName = values.text(12);
        message.ToName = values.text(12);
        message.Subject = values.text(i % 10 == 0 ? 400 : 15);
        message.BodyText = values.text(60);
        message.BodyHtml = values.text(120) + values.text(2);
        message.UnsubscribeLink = "https://x.it/" + values.text(5);
        if (withFiles()) message.Attachments = {{m_folder.filePath("allegato"), values.text(8) + ".pdf"}};
        const auto composed = m_composer.compose(message);
        ASSERT_TRUE(composed.ok());
        const wire::Message read = wire::read(wholeOf(composed.value().text));
        EXPECT_EQ(read.complaints.join("\n").toStdString(), "")
            << i << '\n'
            << wholeOf(composed.value().text).toStdString();
        EXPECT_EQ(read.subject.toStdString(), inOneLine(message.Subject).toStdString());
        if (withFiles()) {
            EXPECT_EQ(read.leaves.back().content, attachmentContent);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Alone, WireMessage, ::testing::Values(false));
INSTANTIATE_TEST_SUITE_P(WithAttachmentsAndImages, WireMessage, ::testing::Values(true));

}  // namespace

}  // namespace wire_message_test
