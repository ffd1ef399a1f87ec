#include "platform/mail/Transcript.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <QTemporaryDir>

#include "support/Vectors.h"

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

TEST_F(Transcript, IsMadeForItsOwnerAloneAndGoesOnBehindAnEarlierOne) {
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
