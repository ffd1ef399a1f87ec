// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/DkimSigner.h"

#include <QTemporaryDir>

#include "platform/mail/dkim_support.h"
#include "platform/mail/dkim_verifier.h"
#include "platform/mail/hostile_values.h"
#include "platform/mail/wire_reader.h"
#include "support/WholeText.h"

namespace dkim_signer_test {

using namespace compose;

namespace {

class Dkim : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        s_folder = new QTemporaryDir;
        s_record = makeDkimKey(s_folder->path(), "orto.example", "maggio.sel-1");
        makeDkimKey(s_folder->path(), "small.example", "s", {"RSA", "-pkeyopt", "rsa_keygen_bits:1024"});
        makeDkimKey(s_folder->path(), "curve.example", "s",
                    {"EC", "-pkeyopt", "ec_paramgen_curve:prime256v1"});
    }
    static void TearDownTestSuite() {
        delete s_folder;
        s_folder = nullptr;
    }

    static mail::MessageData signedMessage() {
        auto message = plainMessage();
        message.DkimFolder = s_folder->path();
        return message;
    }

    mail::ComposedMessage compose(const mail::MessageData& message) {
        auto composed = m_composer.compose(message);
        EXPECT_TRUE(composed.ok()) << composed.status().text().toStdString();
        EXPECT_EQ(complaintAbout(wholeOf(composed.value().text)).toStdString(), "");
        return composed.value();
    }

    void expectUnsigned(const mail::MessageData& message, const char* why) {
        const auto composed = compose(message);
        EXPECT_FALSE(wholeOf(composed.text).contains("DKIM"));
        EXPECT_FALSE(composed.signing.ok());
        EXPECT_TRUE(composed.signing.text().contains(QString::fromUtf8(why)))
            << composed.signing.text().toStdString();
    }

    // What two independent verifiers say of each message
    QByteArrayList verdicts(const QByteArrayList& messages) {
        QByteArrayList all = verdictsOfAProgram(messages);
        for (qsizetype i = 0; i < messages.size(); ++i) {
            const QByteArray other =
                openDkimVerdict(messages[i], "maggio.sel-1._domainkey.orto.example", s_record);
            EXPECT_EQ(all.value(i) == "good", other == "good")
                << all.value(i).constData() << other.constData();
        }
        return all;
    }

    QByteArrayList verdictsOfAProgram(const QByteArrayList& messages) {
        QByteArray all;
        for (const QByteArray& message : messages)
            all += QByteArray::number(message.size()) + '\n' + message;
        const QString path = makeFile(s_folder->filePath("messages"), all);
        return run("/usr/bin/python3",
                   {TEST_DATA_DIR "/../platform/mail/check_dkim.py", path,
                    "maggio.sel-1._domainkey.orto.example", QString::fromLatin1(s_record)})
            .trimmed()
            .split('\n');
    }

    static QTemporaryDir* s_folder;
    static QByteArray s_record;
    mail::Composer m_composer;
};

QTemporaryDir* Dkim::s_folder = nullptr;
QByteArray Dkim::s_record;

TEST_F(Dkim, NothingIsSignedWithoutTheFilesOfTheDomain) {
    auto message = plainMessage();
    EXPECT_FALSE(wholeOf(compose(message).text).contains("DKIM"));
    message.DkimFolder = s_folder->filePath("assente");
    EXPECT_FALSE(wholeOf(compose(message).text).contains("DKIM"));
    message.DkimFolder = s_folder->path();
    for (const char* address : {"a@altro.example", "a@sub.orto.example", "a@example", "a@[192.0.2.1]"}) {
        message.FromAddress = address;
        const auto composed = compose(message);
        EXPECT_FALSE(wholeOf(composed.text).contains("DKIM")) << address;
        EXPECT_TRUE(composed.signing.ok()) << address;
    }
}

TEST_F(Dkim, SignatureIsInFrontAndNamesWhatItCovers) {
    const auto composed = compose(signedMessage());
    EXPECT_TRUE(composed.signing.ok());
    EXPECT_TRUE(wholeOf(composed.text).startsWith("DKIM-Signature: "));
    const QByteArray value = QByteArray(wire::read(wholeOf(composed.text)).header("dkim-signature"))
                                 .replace("\t", "")
                                 .replace(" ", "");
    const QByteArrayList tags = value.split(';');
    for (const char* tag : {"v=1", "a=rsa-sha256", "c=relaxed/relaxed", "d=orto.example", "s=maggio.sel-1"})
        EXPECT_TRUE(tags.contains(tag)) << tag << '\n' << value.toStdString();
    for (const QByteArray& tag : tags) {
        if (!tag.startsWith("h=")) continue;
        QByteArrayList names = tag.mid(2).toLower().split(':');
        std::sort(names.begin(), names.end());
        EXPECT_EQ(
            names.join(' ').toStdString(),
            "cc content-type content-type date date from from list-id list-unsubscribe list-unsubscribe "
            "list-unsubscribe-post message-id message-id mime-version mime-version reply-to subject "
            "subject to to");
    }
    EXPECT_FALSE(value.contains(";l=")) << "the whole body is signed";
}

TEST_F(Dkim, SignatureIsFolded) {
    for (const QByteArray& line : wholeOf(compose(signedMessage()).text).split('\n'))
        EXPECT_LE(line.size(), 79) << line.constData();
}

TEST_F(Dkim, RestOfTheMessageIsAsWithoutIt) {
    const QByteArray data = wholeOf(compose(signedMessage()).text);
    const QByteArray rest = data.mid(data.indexOf("\r\nFrom: ") + 2);
    auto message = plainMessage();
    const QByteArray plain = wholeOf(compose(message).text);
    EXPECT_EQ(rest.size(), plain.size());
    EXPECT_EQ(rest.left(rest.indexOf("Date:")), plain.left(plain.indexOf("Date:")));
}

TEST_F(Dkim, IndependentVerifiersAcceptEachKindOfMessage) {
    const QString file = makeFile(s_folder->filePath("a.pdf"), QByteArray(300000, '\x01'));
    HostileValues values(7);
    QByteArrayList messages;
    for (int i = 0; i < 60; ++i) {
        auto message = signedMessage();
        message.FromAddress = i % 2 ? "info@orto.example" : "Info@ORTO.example";
        if (i > 0) {
            message.FromName = values.text(10);
            message.ToName = values.text(10);
            message.Subject = values.text(i % 5 == 0 ? 200 : 10);
            message.BodyText = values.text(40);
            message.BodyHtml = values.text(40);
        }
        if (i % 4 == 0) message.Attachments = {{file, "a.pdf"}};
        if (i == 1) message.BodyText = message.BodyHtml = QString();
        messages += wholeOf(compose(message).text);
    }
    const QByteArrayList all = verdicts(messages);
    EXPECT_EQ(all.size(), messages.size());
    for (const QByteArray& verdict : all)
        EXPECT_EQ(verdict.toStdString(), "good");
}

TEST_F(Dkim, ChangedMessageIsNotAccepted) {
    const QByteArray good = wholeOf(compose(signedMessage()).text);
    const QByteArrayList changed{QByteArray(good).replace("Buongiorno", "Buonasera"),
                                 QByteArray(good).replace("maggio\r\n", "giugno\r\n"),
                                 QByteArray(good).replace("MIME-Version: 1.0", "MIME-Version: 1.1"),
                                 QByteArray(good).replace("?subject=unsubscribe", "?subject=subscribe"),
                                 good};
    const QByteArrayList all = verdicts(changed);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(all[i].toStdString(), "bad signature") << i;
    EXPECT_EQ(all[4].toStdString(), "good");
}

TEST_F(Dkim, HeaderPutInFrontIsNotAccepted) {
    const QByteArray good = wholeOf(compose(signedMessage()).text);
    QByteArrayList changed;
    for (const char* line :
         {"Subject: x", "From: x@y.it", "To: x@y.it", "Cc: x@y.it", "Reply-To: x@y.it",
          "Date: Mon, 7 Mar 2005 09:05:03 +0100", "Message-ID: <x@y.it>", "MIME-Version: 1.0",
          "Content-Type: text/plain", "List-Unsubscribe: <https://y.it/>",
          "List-Unsubscribe-Post: List-Unsubscribe=One-Click"})
        changed += line + QByteArray("\r\n") + good;
    const QByteArrayList all = verdicts(changed);
    ASSERT_EQ(all.size(), changed.size());
    for (qsizetype i = 0; i < all.size(); ++i)
        EXPECT_NE(all[i].toStdString(), "good") << changed[i].left(40).toStdString();
}

TEST_F(Dkim, OneClickIsOfferedInSignedHeaders) {
    auto message = signedMessage();
    message.TemplateHtml = "<a rel='unsubscribe One-Click' href='https://x.it/u?e=:::email:::'>x</a>";
    message.UnsubscribeLink = "https://x.it/u?e=a@b.it";
    const QByteArray data = wholeOf(compose(message).text);
    EXPECT_EQ(header(data, "List-Unsubscribe"),
              "<https://x.it/u?e=a@b.it>, <mailto:info@orto.example?subject=unsubscribe>");
    EXPECT_EQ(header(data, "List-Unsubscribe-Post"), "List-Unsubscribe=One-Click");
    const QByteArrayList all = verdicts({data, QByteArray(data).replace("=One-Click", "=Two-Click")});
    EXPECT_EQ(all.value(0).toStdString(), "good");
    EXPECT_EQ(all.value(1).toStdString(), "bad signature");
}

TEST_F(Dkim, OneClickIsNotOfferedWhereItCannotWork) {
    const QString oneClick = "<a rel='unsubscribe one-click' href='%1'>x</a>";
    const auto postsOf = [&](const QString& html, const QString& link, const QString& sender,
                             const QString& folder) {
        auto message = signedMessage();
        message.TemplateHtml = html;
        message.UnsubscribeLink = link;
        message.FromAddress = sender;
        message.DkimFolder = folder;
        return headers(wholeOf(compose(message).text), "List-Unsubscribe-Post").size();
    };
    const QString link = "https://x.it/u", sender = "info@orto.example", folder = s_folder->path();
    EXPECT_EQ(postsOf(oneClick.arg(link), link, sender, folder), 1u);
    EXPECT_EQ(postsOf("<a rel=unsubscribe href='https://x.it/u'>x</a>", link, sender, folder), 0u)
        << "not marked";
    EXPECT_EQ(postsOf(oneClick.arg("http://x.it/u"), "http://x.it/u", sender, folder), 0u) << "not encrypted";
    EXPECT_EQ(postsOf(oneClick.arg(link), "https://x.it/u?e=:::nom:::", sender, folder), 0u)
        << "placeholder left";
    EXPECT_EQ(postsOf(oneClick.arg(link), link, "info@altro.example", folder), 0u) << "no key";
    EXPECT_EQ(postsOf(oneClick.arg(link), link, "info@small.example", folder), 0u) << "key not usable";
    EXPECT_EQ(postsOf(oneClick.arg(link), link, sender, QString()), 0u) << "no folder";
}

TEST_F(Dkim, KeyThatCannotBeUsedIsReportedBeforeARun) {
    const auto told = [](const QString& sender, const QString& folder) {
        return mail::DkimSigner::usable(folder, sender);
    };
    EXPECT_TRUE(told("info@orto.example", s_folder->path()).ok());
    EXPECT_TRUE(told("info@altro.example", s_folder->path()).ok()) << "no file: nothing to tell";
    EXPECT_TRUE(told("info", s_folder->path()).ok());
    EXPECT_TRUE(told("info@small.example", s_folder->path()).text().contains("2048 bit"));
    EXPECT_FALSE(told("info@curve.example", s_folder->path()).ok());
}

TEST_F(Dkim, BadKeyIsReportedAndTheMessageGoesOutUnsigned) {
    auto message = signedMessage();
    message.FromAddress = "a@small.example";
    expectUnsigned(message, "meno di 2048 bit");
    message.FromAddress = "a@curve.example";
    expectUnsigned(message, "non è una chiave RSA");
    message.FromAddress = "a@broken.example";
    makeFile(s_folder->filePath("broken.example.selector"), "s");
    expectUnsigned(message, "la chiave manca");
    for (const QByteArray& key :
         {QByteArray(), QByteArray("no key"), QByteArray(1000000, 'x'), QByteArray(100, '\0')}) {
        QFile::setPermissions(makeFile(s_folder->filePath("broken.example.pem"), key),
                              QFile::ReadOwner | QFile::WriteOwner);
        expectUnsigned(message, "non è una chiave RSA");
    }
}

TEST_F(Dkim, KeyThatOthersCanReadIsReportedAndUsedAgainOnceTheyCannot) {
    auto message = signedMessage();
    message.FromAddress = "a@open.example";
    const QString pem = s_folder->filePath("open.example.pem");
    const QString selector = makeFile(s_folder->filePath("open.example.selector"), "aperto");
    QFile::copy(s_folder->filePath("orto.example.pem"), pem);
    const auto ours = QFile::ReadOwner | QFile::WriteOwner;
    QFile::setPermissions(pem, ours | QFile::ReadOther);
    expectUnsigned(message, "altri utenti possono leggere o scrivere");
    EXPECT_TRUE(mail::DkimSigner::usable(s_folder->path(), message.FromAddress).text().contains(pem));
    QFile::setPermissions(pem, ours);
    EXPECT_TRUE(wholeOf(compose(message).text).contains("aperto"));
    QFile::setPermissions(selector, ours | QFile::WriteGroup);
    EXPECT_FALSE(mail::DkimSigner::usable(s_folder->path(), message.FromAddress).ok());
}

TEST_F(Dkim, SelectorThatIsNoNameIsReportedAndTheMessageGoesOutUnsigned) {
    auto message = signedMessage();
    message.FromAddress = "a@selector.example";
    QFile::copy(s_folder->filePath("orto.example.pem"), s_folder->filePath("selector.example.pem"));
    expectUnsigned(message, "il selettore manca");
    for (const QByteArray& selector :
         {QByteArray(" \r\n"), QByteArray("a b"), QByteArray("a\r\nBcc: b@c.it"),
          QByteArray("a; d=altro.example"), QByteArray("perch\xC3\xA9"), QByteArray(70, 's')}) {
        makeFile(s_folder->filePath("selector.example.selector"), selector);
        expectUnsigned(message, "non è valido");
    }
    makeFile(s_folder->filePath("selector.example.selector"), " buono \n");
    EXPECT_TRUE(wholeOf(compose(message).text).contains("buono"));
}

TEST_F(Dkim, FilesAreReadAgainWhenTheyChange) {
    auto message = signedMessage();
    message.FromAddress = "a@change.example";
    EXPECT_FALSE(wholeOf(compose(message).text).contains("DKIM"));
    QFile::copy(s_folder->filePath("orto.example.pem"), s_folder->filePath("change.example.pem"));
    makeFile(s_folder->filePath("change.example.selector"), "primo");
    EXPECT_TRUE(wholeOf(compose(message).text).contains("primo"));
    makeFile(s_folder->filePath("change.example.selector"), "secondo");
    EXPECT_TRUE(wholeOf(compose(message).text).contains("secondo"));
    QFile::remove(s_folder->filePath("change.example.pem"));
    QFile::remove(s_folder->filePath("change.example.selector"));
    EXPECT_FALSE(wholeOf(compose(message).text).contains("DKIM"));
}

}  // namespace

}  // namespace dkim_signer_test
