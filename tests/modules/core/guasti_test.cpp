// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/core/Guasti.h"

#include <sys/stat.h>
#include <QDir>
#include <QFileInfo>
#include <QScopeGuard>
#include <QTemporaryDir>

#include "platform/system/Clock.h"
#include "platform/system/ProgramFolder.h"
#include "support/Vectors.h"

namespace guasti_test {

namespace {

class Guasti : public testing::Test {
  protected:
    Guasti() {
        QDir(m_folder.path()).mkdir("data");
        sys::setProgramFolder(m_folder.path());
        sys::clock().now = [] { return QDateTime(QDate(2026, 3, 1), QTime(9, 5, 7)); };
    }
    ~Guasti() override {
        sys::clock() = sys::systemClock();
        sys::setProgramFolder({});
    }
    QString path(const QString& name = "guasti.txt") const { return m_folder.filePath("data/" + name); }

  private:
    QTemporaryDir m_folder;
};

}  // namespace

TEST_F(Guasti, AnEntryContainsTimeVersionFailureAndCircumstances) {
    {
        const Operazione outer("Editor messaggi");
        const Operazione inner("Importazione da file di testo", "/a/lista.txt");
        guasti::Annota(Fallimento(9, "Riga 3: il campo 1 non c'è; inseriti 2 destinatari"));
    }
    guasti::Annota(Fallimento(53, "Impossibile trovare il file", {}, "/a/b.txt"));
    EXPECT_EQ(QString::fromUtf8(bytesOf(path())),
              "[Guasti di Vestrola]\r\n"
              "2026-03-01 09:05:07 Vestrola Ver. 3.0.2130\r\n"
              "Errore 9: Riga 3: il campo 1 non c'è; inseriti 2 destinatari\r\n"
              "Operazione: Importazione da file di testo\r\n"
              "File: /a/lista.txt\r\n\r\n"
              "2026-03-01 09:05:07 Vestrola Ver. 3.0.2130\r\n"
              "Errore 53: Impossibile trovare il file\r\n"
              "File: /a/b.txt\r\n\r\n");
}

TEST_F(Guasti, TheFileIsForItsOwnerOnly) {
    guasti::Annota(Fallimento(9, "a"));
    struct stat found {};
    ASSERT_EQ(::stat(QFile::encodeName(path()).constData(), &found), 0);
    EXPECT_EQ(found.st_mode & 0777, 0600u);
}

TEST_F(Guasti, TheOldestEntriesMakeRoom) {
    for (int i = 0; i < 400; ++i)
        guasti::Annota(Fallimento(i, QString(900, 'x')));
    const QByteArray bytes = bytesOf(path());
    EXPECT_LE(bytes.size(), guasti::limite);
    EXPECT_GT(bytes.size(), guasti::limite - 2000);
    EXPECT_TRUE(bytes.startsWith("[Guasti di Vestrola]\r\n2026-03-01"));
    EXPECT_TRUE(bytes.contains("Errore 399:"));
    EXPECT_FALSE(bytes.contains("Errore 0:"));
}

TEST_F(Guasti, AnEntryOfAnyLengthIsCut) {
    guasti::Annota(Fallimento(9, QString(1 << 20, 'x')));
    guasti::Annota(Fallimento(10, "b\r\nc"));
    EXPECT_LT(bytesOf(path()).size(), 5000);
    EXPECT_TRUE(bytesOf(path()).contains("Errore 10: b  c\r\n"));
}

TEST_F(Guasti, NobodysAddressNorTextIsWrittenDown) {
    for (const char* text :
         {"Destinatario mario.rossi@x.it rifiutato", "Errore di sintassi vicino a \"mario segreto\"",
          "near \"segreto\": syntax error", "valore 'segreto' non valido", "no such column: segreto",
          "la data #segreto# non è valida", "<mario@segreto>", "provider «segreto»", "Feld „segreto“",
          "champ « segreto »"})
        guasti::Annota(Fallimento(3075, QString(text), {}, "/home/mario@segreto/a.txt"));
    const QByteArray bytes = bytesOf(path());
    EXPECT_FALSE(bytes.contains("segreto")) << bytes.toStdString();
    EXPECT_FALSE(bytes.contains("mario")) << bytes.toStdString();
    EXPECT_TRUE(bytes.contains("File: /home/(omesso)/a.txt"));
    EXPECT_EQ(guasti::Ripulito("il campo 1 non c'è; inseriti 2"), "il campo 1 non c'è; inseriti 2");
}

TEST_F(Guasti, AFileOfAnotherKindIsSetAside) {
    writeBytes(path(), "something else");
    guasti::Annota(Fallimento(9, "a"));
    EXPECT_EQ(bytesOf(path("guasti.txt.rovinato")), QByteArray("something else"));
    EXPECT_TRUE(bytesOf(path()).startsWith("[Guasti di Vestrola]\r\n2026"));
    writeBytes(path(), "[Guasti di Vestrola]\r\n" + QByteArray(guasti::limite, 'x'));
    guasti::Annota(Fallimento(9, "a"));
    EXPECT_LT(bytesOf(path()).size(), 1000);
}

TEST_F(Guasti, NoLinkIsFollowed) {
    const QTemporaryDir elsewhere;
    writeBytes(elsewhere.filePath("a"), "other");
    ASSERT_TRUE(QFile::link(elsewhere.filePath("a"), path()));
    guasti::Annota(Fallimento(9, "a"));
    EXPECT_EQ(bytesOf(elsewhere.filePath("a")), QByteArray("other"));
    EXPECT_FALSE(QFileInfo(path()).isSymLink());
}

TEST_F(Guasti, AFolderThatCannotBeWrittenIsIgnored) {
    sys::setProgramFolder("/nowhere");
    EXPECT_NO_THROW(guasti::Annota(Fallimento(9, "a")));
}

}  // namespace guasti_test
