// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/Transcript.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <QTemporaryDir>

#include "support/Vectors.h"

namespace transcript_test {

namespace {

class Transcript : public testing::Test {
  protected:
    QString path() const { return m_folder.filePath("prova.xt1"); }
    QString letter() const { return m_folder.filePath("lettera"); }
    void writeOneLine() const {
        mail::Transcript transcript;
        transcript.setFile(path());
        transcript.remark("prova");
        transcript.flush();
    }

  private:
    QTemporaryDir m_folder;
};

}  // namespace

TEST_F(Transcript, IsMadeForItsOwnerAloneAndIsAppendedToAnEarlierOne) {
    const mode_t before = ::umask(0);
    writeOneLine();
    writeOneLine();
    ::umask(before);
    struct stat made {};
    ASSERT_EQ(::stat(QFile::encodeName(path()).constData(), &made), 0);
    EXPECT_EQ(made.st_mode & 0777U, 0600U);
    EXPECT_EQ(bytesOf(path()).count("* prova\r\n"), 2);
}

TEST_F(Transcript, IsNotWrittenThroughALink) {
    writeBytes(letter(), "resta");
    ASSERT_TRUE(QFile::link(letter(), path()));
    writeOneLine();
    EXPECT_EQ(bytesOf(letter()), QByteArray("resta"));
}

TEST_F(Transcript, SamePathAgainKeepsTheOpenFile) {
    mail::Transcript transcript;
    transcript.setFile(path());
    transcript.remark("uno");
    ASSERT_TRUE(QFile::rename(path(), letter()));
    transcript.setFile(path());
    transcript.remark("due");
    transcript.flush();
    EXPECT_EQ(bytesOf(letter()).count("\r\n"), 2);
    transcript.setFile({});
    EXPECT_FALSE(transcript.active());
}

TEST_F(Transcript, ContainsNoTerminalControls) {
    const QByteArray hostile =
        "a\r\x1b[2J\x07\x7f\xc2\x9b"
        "31m\xe2\x80\xae\xe2\x80\xa8\xe2\x81\xa6\xe2\x80\x8b\xef\xbb\xbf\xf3\xa0\x81\x81\x9bz";
    mail::Transcript transcript;
    transcript.setFile(path());
    transcript.received(250, hostile);
    transcript.received(550, hostile + '\n' + hostile);
    transcript.remark(QString::fromUtf8(hostile));
    transcript.sent(hostile);
    transcript.flush();
    const QString log = QString::fromUtf8(bytesOf(path()));
    EXPECT_EQ(log.count("\r\n"), 5);
    EXPECT_EQ(log.count("a  [2J   31m"), 5) << log.toStdString();
    for (const uint character : QString(log).remove("\r\n").toUcs4()) {
        const QChar::Category category = QChar::category(character);
        EXPECT_TRUE(category != QChar::Other_Control && category != QChar::Other_Format &&
                    category != QChar::Separator_Line)
            << std::hex << character;
    }
}

TEST_F(Transcript, LongLinesAreCut) {
    mail::Transcript transcript;
    transcript.setFile(path());
    transcript.received(250, QByteArray(4000, 'x') + '\n' + QByteArray("😀").repeated(2000));
    transcript.remark(QString(40000, u'y'));
    transcript.flush();
    const QString log = QString::fromUtf8(bytesOf(path()));
    EXPECT_EQ(log.count(u'…'), 3);
    EXPECT_FALSE(log.contains(QChar::ReplacementCharacter));
    for (const QString& line : log.split("\r\n"))
        EXPECT_LT(line.size(), 1040);
}

}  // namespace transcript_test
