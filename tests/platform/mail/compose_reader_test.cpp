// SPDX-License-Identifier: GPL-3.0-or-later
// Composes messages of ordinary and hostile values and compares them with what Python's e-mail parser,
// under its strict policy, reads in them.
#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include "platform/mail/compose_support.h"
#include "platform/mail/HeaderText.h"
#include "platform/mail/hostile_values.h"
#include "support/WholeText.h"

namespace compose_reader_test {

using namespace compose;

namespace {

const QByteArray attachmentContent("\0\r\n.\r\nFrom x", 12);
constexpr int messagesOfTheLoop = 600;
const QString systemPython = QStringLiteral("/usr/bin/python3");

// Line ends as sent, NUL as a blank
QString asSent(QString text) {
    text.replace("\r\n", "\n").replace('\r', '\n').replace('\n', "\r\n").replace(QChar(0), ' ');
    return QString::fromUtf8(text.toUtf8());
}

class ReadByPython : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(QFile::exists(systemPython));
        makeFile(m_folder.filePath("logo.png"), pngContent(300));
        makeFile(m_folder.filePath("allegato"), attachmentContent);
    }

    void add(const mail::MessageData& message) {
        const auto composed = m_composer.compose(message);
        ASSERT_TRUE(composed.ok()) << composed.status().text().toStdString();
        EXPECT_EQ(complaintAbout(wholeOf(composed.value().text)).toStdString(), "")
            << wholeOf(composed.value().text).toStdString();
        m_sent.push_back(message);
        m_composed.push_back(composed.value());
    }

    // What Python understood of each message, in order
    QJsonArray read() {
        QByteArray all;
        for (const auto& composed : m_composed)
            all += QByteArray::number(wholeOf(composed.text).size()) + '\n' + wholeOf(composed.text);
        QProcess python;
        python.start(systemPython, {TEST_DATA_DIR "/../platform/mail/check_message.py",
                                    makeFile(m_folder.filePath("all"), all)});
        EXPECT_TRUE(python.waitForFinished(200000));
        EXPECT_EQ(python.exitCode(), 0) << python.readAllStandardError().toStdString();
        QJsonArray results = QJsonDocument::fromJson(python.readAllStandardOutput()).array();
        EXPECT_EQ(static_cast<std::size_t>(results.size()), m_sent.size());
        return results;
    }

    void expectAllRead() {
        const QJsonArray results = read();
        for (std::size_t i = 0; i < m_sent.size() && !HasFailure(); ++i) {
            expectRead(m_sent[i], m_composed[i], results[static_cast<qsizetype>(i)].toObject());
            if (HasFailure()) std::fputs(wholeOf(m_composed[i].text).constData(), stderr);
        }
    }

    static QString text(const QString& value) { return QString::fromUtf8(mail::singleLine(value).toUtf8()); }

    static void expectName(const QJsonObject& address, const QString& name) {
        EXPECT_EQ(address["count"].toInt(), 1);
        const QString start = text(name.left(1000));
        const QString expected = start.trimmed().isEmpty() ? QString() : start;
        EXPECT_EQ(address["name"].toString().toStdString(), expected.toStdString());
    }

    void expectRead(const mail::MessageData& sent, const mail::ComposedMessage& composed,
                    const QJsonObject& read) {
        ASSERT_FALSE(read.contains("failure")) << read["failure"].toString().toStdString();
        EXPECT_EQ(QJsonDocument(read["defects"].toArray()).toJson(QJsonDocument::Compact).toStdString(),
                  "[]");
        expectName(read["from"].toObject(), sent.FromName);
        expectName(read["to"].toObject(), sent.ToName);
        EXPECT_EQ(read["to"].toObject()["address"].toString().toUtf8().toStdString(),
                  composed.to.address().toStdString());
        EXPECT_EQ(read["subject"].toString().toStdString(), text(sent.Subject).toStdString());
        EXPECT_EQ(read["message_id"].toString().toUtf8(), composed.messageId);
        EXPECT_TRUE(read["unsubscribe"].toString().startsWith("<"));
        expectContent(sent, read["leaves"].toArray());
    }

    static void expectContent(const mail::MessageData& sent, const QJsonArray& leaves) {
        qsizetype next = 0;
        const bool hasHtml = !sent.BodyHtml.toUtf8().trimmed().isEmpty();
        if (hasTextForm(sent)) {
            EXPECT_EQ(leaves[next]["type"].toString(), "text/plain");
            EXPECT_EQ(complaintAboutText(sent, leaves[next++]["text"].toString()).toStdString(), "");
        }
        if (hasHtml) {
            EXPECT_EQ(leaves[next]["type"].toString(), "text/html");
            const QString html = leaves[next++]["text"].toString();
            if (!sent.BodyHtml.contains("<meta") && !sent.BodyHtml.contains("logo.png") &&
                !sent.BodyHtml.contains("http")) {
                expectText(html, asSent(sent.BodyHtml));
            }
        }
        while (next < leaves.size() && leaves[next]["type"] == "image/png") {
            EXPECT_EQ(leaves[next++]["hex"].toString(), QString::fromLatin1(pngContent(300).toHex()));
        }
        EXPECT_EQ(leaves.size() - next, sent.Attachments.items().size());
        for (const auto& attachment : sent.Attachments.items()) {
            const QJsonObject part = leaves[next++].toObject();
            EXPECT_EQ(part["disposition"].toString(), "attachment");
            EXPECT_EQ(part["encoding"].toString(), "base64");
            EXPECT_EQ(part["hex"].toString().toLatin1(), attachmentContent.toHex());
            EXPECT_FALSE(part["filename"].toString().contains('/'));
            if (!attachment.name.contains('/') && !attachment.name.contains('\\') &&
                attachment.name.size() < 40) {
                EXPECT_EQ(part["filename"].toString().toStdString(),
                          text(attachment.name).trimmed().toStdString());
            }
        }
    }

    // A message that is one text alone ends with a line end, whatever the text does
    static void expectText(QString read, const QString& sent) {
        if (read.endsWith("\r\n") && !sent.endsWith("\r\n")) read.chop(2);
        EXPECT_EQ(read.toStdString(), sent.toStdString());
    }

    QTemporaryDir m_folder;
    mail::Composer m_composer;
    std::vector<mail::MessageData> m_sent;
    std::vector<mail::ComposedMessage> m_composed;
};

TEST_F(ReadByPython, EachKindOfValueIsReadBack) {
    for (const ValueKind& kind : valueKinds()) {
        auto message = plainMessage();
        message.FromName = message.ToName = message.Subject = message.BodyText = kind.value;
        message.BodyHtml = "<p>" + kind.value + "</p>";
        add(message);
    }
    expectAllRead();
}

TEST_F(ReadByPython, HostileValuesAreReadBackAsText) {
    HostileValues values(20050307);
    for (int i = 0; i < messagesOfTheLoop; ++i) {
        mail::MessageData message;
        message.FromName = values.text(12);
        message.FromAddress = values.address();
        message.ToName = values.text(12);
        message.ToAddress = values.address();
        message.Subject = values.text(i % 10 == 0 ? 300 : 15);
        message.BodyText = values.text(60);
        message.BodyHtml = values.text(120);
        message.Priority = values.below(6);
        if (i % 3 == 0) {
            message.TemplateHtml = "<img src='" + m_folder.filePath("logo.png") + "'>";
            message.BodyHtml.prepend(message.TemplateHtml);
        }
        if (i % 4 == 0) message.Attachments.Add(m_folder.filePath("allegato"), values.text(6) + "x.bin");
        if (i % 8 == 0) message.Attachments.Add(m_folder.filePath("allegato"), QStringLiteral("però.dat"));
        add(message);
        if (HasFailure()) break;
    }
    expectAllRead();
}

TEST_F(ReadByPython, LayersAreInsideEachOther) {
    auto message = plainMessage();
    message.BodyHtml = message.TemplateHtml = "<img src='" + m_folder.filePath("logo.png") + "'>";
    message.Attachments = {{m_folder.filePath("allegato"), "a.pdf"}};
    add(message);
    const QJsonArray results = read();
    EXPECT_EQ(QJsonDocument(results[0]["tree"].toArray()).toJson(QJsonDocument::Compact).toStdString(),
              "[\"multipart/mixed\",[\"multipart/related\",[\"multipart/alternative\",\"text/plain\",\"text/"
              "html\"],"
              "\"image/png\"],\"application/pdf\"]");
}

TEST_F(ReadByPython, FileNamesAreReadBack) {
    auto message = plainMessage();
    const QStringList names = {"listino.pdf",
                               "con blanks.pdf",
                               QStringLiteral("città è già 👍.pdf"),
                               QStringLiteral("però ").repeated(30) + ".txt",
                               QString(150, 'x') + ".zip",
                               "a'b\"c;d=e.zip",
                               "100%.zip",
                               "utf-8''x.zip"};
    for (const QString& name : names)
        message.Attachments.Add(m_folder.filePath("allegato"), name);
    add(message);
    const QJsonArray results = read();
    const QJsonArray leaves = results[0]["leaves"].toArray();
    ASSERT_EQ(leaves.size(), names.size() + 2);
    for (qsizetype i = 0; i < names.size(); ++i) {
        EXPECT_EQ(leaves[i + 2]["filename"].toString().toStdString(), names[i].toStdString());
        const QString plain = leaves[i + 2]["plain_name"].toString();
        EXPECT_FALSE(plain.isEmpty());
        for (const QChar c : plain)
            EXPECT_LT(c.unicode(), 0x7F);
    }
    EXPECT_EQ(QJsonDocument(results[0]["defects"].toArray()).toJson(QJsonDocument::Compact).toStdString(),
              "[]");
}

}  // namespace

}  // namespace compose_reader_test
