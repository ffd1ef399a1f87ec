// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/message/MessaggioMss.h"
#include "platform/html/Bounds.h"

#include <sys/stat.h>
#include <QDir>
#include <QTemporaryDir>

#include "modules/core/Fallimento.h"
#include "platform/system/ProgramFolder.h"
#include "support/FullDisk.h"
#include "support/Vectors.h"

namespace message_file_test {

namespace {

struct Reading {
    QString subject;
    QString priority;
    std::vector<AllegatoMss> present;
    QStringList warnings;
    QString body;
};

Reading readAll(const QString& path) {
    Reading reading;
    LettoreMss reader(path);
    reading.subject = reader.oggetto();
    reading.priority = reader.priorita();
    while (const std::optional<AllegatoMss> attachment = reader.allegato()) {
        if (attachment->presente) {
            reading.present.push_back(*attachment);
        } else {
            reading.warnings += AvvisoAllegatoMancante(attachment->nome);
        }
    }
    reading.body = reader.corpo();
    return reading;
}

int failureOfPreview(const QString& path) {
    try {
        LeggiCorpoMss(path);
    } catch (const Fallimento& failure) {
        return failure.numero();
    }
    return 0;
}

class MessageFile : public testing::Test {
  protected:
    QString path(const QString& name = QStringLiteral("m.mss")) const { return m_folder.filePath(name); }
    Reading readBytes(const QByteArray& bytes) const {
        writeBytes(path(), bytes);
        return readAll(path());
    }
    QString filled(const QString& text) const {
        return QString(text).replace(QLatin1String("@ALLEGATI@"), m_folder.path());
    }

    // A vector's file with the attachment folder filled in.
    void install(const QString& name) const {
        writeBytes(path(), bytesOf(dataPath(QStringLiteral("mss/") + name))
                               .replace("@ALLEGATI@", QFile::encodeName(m_folder.path())));
    }
    void makeAttachments() const {
        const QJsonObject files =
            jsonOf(QStringLiteral("mss/expected.json"))[QLatin1String("must_exist")].toObject();
        for (const QString& name : files.keys())
            writeBytes(filled(name), QByteArray(files[name].toInt(), 'x'));
    }
    QString expectedBody(const QJsonValue& reading) const {
        const QJsonValue file = reading[QLatin1String("body_file")];
        return file.isString()
                   ? QString::fromUtf8(bytesOf(dataPath(QStringLiteral("mss/") + file.toString())))
                   : reading[QLatin1String("body")].toString();
    }

  private:
    QTemporaryDir m_folder;
};

}  // namespace

TEST_F(MessageFile, EditorAndSetUpReadTheVectors) {
    makeAttachments();
    for (const QJsonValue vector : vectorsOf(QStringLiteral("mss/expected.json"))) {
        SCOPED_TRACE(vector[QLatin1String("name")].toString().toStdString());
        install(vector[QLatin1String("file")].toString());
        const Reading reading = readAll(path());
        const QJsonValue editor = vector[QLatin1String("editor")];
        const QJsonValue send = vector[QLatin1String("send")];

        EXPECT_EQ(reading.subject, editor[QLatin1String("subject")].toString());
        EXPECT_EQ(reading.subject, send[QLatin1String("subject")].toString());
        EXPECT_EQ(reading.priority == QLatin1String("HI"), editor[QLatin1String("cmdPriAlta")].toBool());
        EXPECT_EQ(reading.priority == QLatin1String("LW"), editor[QLatin1String("cmdPriBassa")].toBool());
        EXPECT_EQ(NumeroPriorita(reading.priority), send[QLatin1String("priority")].toInt());
        EXPECT_EQ(reading.warnings, editor[QLatin1String("boxes")].toVariant().toStringList());
        EXPECT_EQ(reading.warnings, send[QLatin1String("boxes")].toVariant().toStringList());
        EXPECT_EQ(!reading.warnings.isEmpty(), editor[QLatin1String("shows_changed_mark")].toBool());
        EXPECT_EQ(reading.body, expectedBody(editor));
        EXPECT_EQ(reading.body.count(QLatin1String("\r\n")),
                  editor[QLatin1String("lines_read_body")].toInt());

        const QJsonArray attachments = send[QLatin1String("attachments")].toArray();
        ASSERT_EQ(static_cast<qsizetype>(reading.present.size()), attachments.size());
        for (int i = 0; i < attachments.size(); ++i) {
            const AllegatoMss& attachment = reading.present[static_cast<std::size_t>(i)];
            EXPECT_EQ(attachment.percorso, filled(attachments[i][QLatin1String("path")].toString()));
            EXPECT_EQ(attachment.percorso, filled(editor[QLatin1String("attachments")][i].toString()));
            EXPECT_EQ(attachment.nome, attachments[i][QLatin1String("name")].toString());
        }
    }
}

TEST_F(MessageFile, PreviewReadsTheVectors) {
    for (const QJsonValue vector : vectorsOf(QStringLiteral("mss/expected.json"))) {
        SCOPED_TRACE(vector[QLatin1String("name")].toString().toStdString());
        install(vector[QLatin1String("file")].toString());
        const QJsonValue preview = vector[QLatin1String("preview")];
        if (preview[QLatin1String("error")].isString()) {
            EXPECT_EQ(failureOfPreview(path()), static_cast<int>(ErrorCode::InputPastEnd));
        } else {
            const bool same = preview[QLatin1String("same_as_editor_body")].toBool();
            EXPECT_EQ(LeggiCorpoMss(path()), expectedBody(same ? vector[QLatin1String("editor")] : preview));
        }
    }
}

TEST_F(MessageFile, WriterMakesTheBytesOfTheVectors) {
    for (const QJsonValue vector : vectorsOf(QStringLiteral("mss/write.json"))) {
        MessaggioMss message;
        message.Oggetto = vector[QLatin1String("txtOggetto")].toString();
        message.Priorita = vector[QLatin1String("cmdPriAlta")].toBool()    ? QStringLiteral("HI")
                           : vector[QLatin1String("cmdPriBassa")].toBool() ? QStringLiteral("LW")
                                                                           : QStringLiteral("NR");
        message.Allegati = vector[QLatin1String("paths")].toVariant().toStringList();
        message.CorpoHTML = vector[QLatin1String("DocumentHTML")].toString();
        ScriviMessaggio(path(), message);
        EXPECT_EQ(bytesOf(path()).toHex(), vector[QLatin1String("bytes_hex")].toString().toLatin1());
    }
}

TEST_F(MessageFile, WhatIsWrittenIsRead) {
    writeBytes(path(QStringLiteral("l'offerta.pdf")), "x");
    const MessaggioMss message{QStringLiteral("Perché – sì"),
                               QStringLiteral("HI"),
                               {path(QStringLiteral("l'offerta.pdf"))},
                               QStringLiteral("<P>uno</P>\r\n<P>due</P>")};
    ScriviMessaggio(path(), message);
    const Reading reading = readAll(path());
    EXPECT_EQ(reading.subject, message.Oggetto);
    EXPECT_EQ(reading.priority, message.Priorita);
    ASSERT_EQ(reading.present.size(), 1u);
    EXPECT_EQ(reading.present[0].percorso, message.Allegati[0]);
    EXPECT_EQ(reading.body, message.CorpoHTML + QStringLiteral("\r\n"));
    EXPECT_EQ(LeggiCorpoMss(path()), reading.body);
}

TEST_F(MessageFile, SubjectWithAMarkerOrBlanksAtItsEndsIsReadWithoutThem) {
    ScriviMessaggio(path(), {QStringLiteral("  prima [<END-SUBJ>]dopo "), QStringLiteral("NR"), {}, {}});
    EXPECT_EQ(readAll(path()).subject, QStringLiteral("prima dopo"));
}

TEST_F(MessageFile, EmptyAttachmentRowIsAMissingFileWithoutAName) {
    const Reading reading =
        readBytes("s\r\nNR\r\n[<INI-ALLG>]\r\n\r\n[<END-ALLG>]\r\n[<INI-MESS>]\r\nx\r\n[<END-MESS>]\r\n");
    EXPECT_EQ(reading.warnings,
              QStringList(QStringLiteral("Il file  allegato non esiste più o è stato spostato.")));
    EXPECT_EQ(reading.body, QStringLiteral("x\r\n"));
}

TEST_F(MessageFile, EmptyAttachmentListIsTheTwoMarkersInARow) {
    ScriviMessaggio(path(), {QStringLiteral("s"), QStringLiteral("NR"), {}, QStringLiteral("x")});
    EXPECT_TRUE(bytesOf(path()).contains("[<INI-ALLG>]\r\n[<END-ALLG>]\r\n"));
    EXPECT_TRUE(readAll(path()).present.empty());
}

TEST_F(MessageFile, BodyIsEmptyWhereItsLastMarkerReplacesTheFirst) {
    const QByteArray head = "s\r\nNR\r\n[<INI-ALLG>]\r\n[<END-ALLG>]\r\n";
    EXPECT_EQ(readBytes(head + "[<END-MESS>]\r\nx\r\n[<END-MESS>]\r\n").body, QString());
    // Only the exact row counts there.
    EXPECT_EQ(readBytes(head + " [<END-MESS>]\r\nx\r\n[<END-MESS>]\r\n").body, QStringLiteral("x\r\n"));
}

TEST_F(MessageFile, LoneLineFeedStaysInsideALine) {
    const Reading reading =
        readBytes("a\nb\r\nHI\r\n[<INI-ALLG>]\r\n[<END-ALLG>]\r\n[<INI-MESS>]\r\nx\ny\r\n[<END-MESS>]\r\n");
    EXPECT_EQ(reading.subject, QStringLiteral("a\nb"));
    EXPECT_EQ(reading.body, QStringLiteral("x\ny\r\n"));
}

TEST_F(MessageFile, FolderAsAttachmentIsMissing) {
    const QByteArray folder = QFile::encodeName(QFileInfo(path()).path());
    const Reading reading = readBytes("s\r\nNR\r\n[<INI-ALLG>]\r\n" + folder +
                                      "\r\n[<END-ALLG>]\r\n[<INI-MESS>]\r\n[<END-MESS>]\r\n");
    EXPECT_TRUE(reading.present.empty());
    EXPECT_EQ(reading.warnings.size(), 1);
}

TEST_F(MessageFile, BackslashAndSlashBothEndTheFolderOfAName) {
    const Reading reading = readBytes(
        "s\r\nNR\r\nx\r\nC:\\a\\uno.pdf\r\n/b/due.pdf "
        "\r\ntre.pdf\r\n[<END-ALLG>]\r\n[<INI-MESS>]\r\n[<END-MESS>]\r\n");
    EXPECT_EQ(reading.warnings, QStringList({AvvisoAllegatoMancante(QStringLiteral("uno.pdf")),
                                             AvvisoAllegatoMancante(QStringLiteral("due.pdf ")),
                                             AvvisoAllegatoMancante(QStringLiteral("tre.pdf"))}));
}

TEST_F(MessageFile, EveryCutEndsEditorAndSetUpWithWhatThereWas) {
    const QByteArray whole = bytesOf(dataPath(QStringLiteral("mss/files/allegato_doppio.mss")));
    const QString body = readBytes(whole).body;
    const QString marker = QStringLiteral("[<END-MESS>]");
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const Reading cut = readBytes(whole.left(length));
        EXPECT_LE(cut.warnings.size(), 3) << length;  // two files and a torn marker
        EXPECT_TRUE((body + marker).startsWith(cut.body.chopped(cut.body.isEmpty() ? 0 : 2))) << length;
    }
}

TEST_F(MessageFile, FileThatCannotBeOpenedReadsAsOneWithoutLines) {
    const Reading reading = readAll(path(QStringLiteral("missing.mss")));
    EXPECT_TRUE(reading.subject.isEmpty());
    EXPECT_TRUE(reading.priority.isEmpty());
    EXPECT_TRUE(reading.warnings.isEmpty());
    EXPECT_TRUE(reading.body.isEmpty());
    EXPECT_EQ(failureOfPreview(path(QStringLiteral("missing.mss"))),
              static_cast<int>(ErrorCode::FileNotFound));
}

TEST_F(MessageFile, LineThatIsMissingCountsAsTheOneBefore) {
    EXPECT_EQ(readBytes("HI").priority, QStringLiteral("HI"));
}

TEST_F(MessageFile, PreviewSkipsWhateverIsAheadOfTheBody) {
    writeBytes(path(), "\x01\x02\r\n\r\n[<END-MESS>]\r\n  [<INI-MESS>] \r\n x \r\n [<END-MESS>]\r\nrest");
    EXPECT_EQ(LeggiCorpoMss(path()), QStringLiteral(" x \r\n"));
}

TEST_F(MessageFile, PreviewFailsWhereTheBodyDoesNotEnd) {
    writeBytes(path(), "[<INI-MESS>]\r\nx\r\n");
    EXPECT_EQ(failureOfPreview(path()), static_cast<int>(ErrorCode::InputPastEnd));
}

TEST_F(MessageFile, EndlessLineIsGivenUp) {
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("s\r\nNR\r\n[<INI-ALLG>]\r\n[<END-ALLG>]\r\n[<INI-MESS>]\r\nx\r\n");
    ASSERT_TRUE(file.resize(128 * 1024 * 1024));  // a hole: it takes no room on the disk
    file.close();
    EXPECT_EQ(readAll(path()).body, QStringLiteral("x\r\n"));
    EXPECT_EQ(failureOfPreview(path()), static_cast<int>(ErrorCode::DeviceIo));
}

TEST_F(MessageFile, EndlessBodyIsGivenUp) {
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("s\r\nNR\r\n[<INI-ALLG>]\r\n[<END-ALLG>]\r\n[<INI-MESS>]\r\n");
    const QByteArray megabyte(1024 * 1024 - 1, 'x');
    for (int i = 0; i < 70; ++i)
        file.write(megabyte + '\r');
    file.close();
    for (const QString& body : {LeggiCorpoMss(path()), readAll(path()).body}) {
        EXPECT_GT(body.size(), html::mostCharacters);  // so that its reader refuses it
        EXPECT_LE(body.size(), html::mostCharacters + 1024 * 1024 + 2);
    }
}

TEST_F(MessageFile, WriterFailsWhereTheFileCannotBeOpened) {
    EXPECT_THROW(ScriviMessaggio(path(QStringLiteral("missing/m.mss")), {}), Fallimento);
}

TEST_F(MessageFile, FileOfTheDataFolderIsForItsOwnerAloneAndOthersAreAsTheUsersSettingsSay) {
    const mode_t before = ::umask(022);
    sys::setProgramFolder(QFileInfo(path()).path());
    ASSERT_TRUE(QDir().mkpath(path(QStringLiteral("data"))));
    const auto modeOfNew = [](const QString& file) {
        ScriviMessaggio(file, {QStringLiteral("s"), QStringLiteral("NR"), {}, {}});
        struct stat made {};
        EXPECT_EQ(::stat(QFile::encodeName(file).constData(), &made), 0);
        return made.st_mode & 0777U;
    };
    EXPECT_EQ(modeOfNew(path(QStringLiteral("data/m.mss"))), 0600U);
    EXPECT_EQ(modeOfNew(path()), 0644U);
    sys::setProgramFolder({});
    ::umask(before);
}

TEST_F(MessageFile, WriterTruncatesWhatWasThere) {
    writeBytes(path(), QByteArray(10000, 'x'));
    ScriviMessaggio(path(), {QStringLiteral("s"), QStringLiteral("NR"), {}, {}});
    EXPECT_EQ(bytesOf(path()).count('x'), 0);
}

TEST_F(MessageFile, FullDiskKeepsTheMessageThatWasThere) {
    ScriviMessaggio(path(),
                    {QStringLiteral("prima"), QStringLiteral("NR"), {}, QStringLiteral("<p>prima</p>")});
    const QByteArray before = bytesOf(path());
    {
        const FullDisk full(static_cast<rlim_t>(before.size() / 2));
        EXPECT_THROW(
            ScriviMessaggio(
                path(), {QStringLiteral("dopo"), QStringLiteral("NR"), {}, QStringLiteral("<p>dopo</p>")}),
            Fallimento);
    }
    EXPECT_EQ(bytesOf(path()), before);
}

TEST_F(MessageFile, MoreAttachmentsThanTheCounterCanCountFailAndNothingIsWritten) {
    MessaggioMss message;
    message.Allegati = QStringList(32768, QStringLiteral("a"));
    EXPECT_THROW(ScriviMessaggio(path(), message), Fallimento);
    EXPECT_EQ(bytesOf(path()), QByteArray());
    message.Allegati.removeLast();
    ScriviMessaggio(path(), message);
    EXPECT_TRUE(bytesOf(path()).endsWith("[<END-MESS>]\r\n"));
}

TEST(Priority, OnlyTheTwoCapitalCodesAreNotNormal) {
    EXPECT_EQ(NumeroPriorita(QStringLiteral("HI")), 1);
    EXPECT_EQ(NumeroPriorita(QStringLiteral("LW")), 5);
    for (const char* code : {"NR", "hi", "lw", "", "HIGH"})
        EXPECT_EQ(NumeroPriorita(QLatin1String(code)), 3) << code;
}

}  // namespace message_file_test
