#include "platform/contacts/ContactFolder.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include "platform/contacts/HelperOutput.h"
#include "platform/system/ProgramFolder.h"

namespace contacts {

namespace {

constexpr qsizetype largestOutput = 128LL * 1024 * 1024;

QString& chosenHelper() {
    static QString program;
    return program;
}

}  // namespace

QStringList outlookFolders() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return {documents, documents + QStringLiteral("/Outlook Files"),
            documents + QStringLiteral("/File di Outlook"), sys::programFolder() + QStringLiteral("data")};
}

QString findOutlookFile(const QStringList& folders) {
    QFileInfo newest;
    for (const QString& folder : folders) {
        const auto files = QDir(folder).entryInfoList({"*.pst", "*.ost"}, QDir::Files | QDir::Readable);
        for (const QFileInfo& file : files) {
            if (newest.filePath().isEmpty() || file.lastModified() > newest.lastModified()) newest = file;
        }
    }
    return newest.filePath();
}

QString outlookHelper() {
    if (!chosenHelper().isEmpty()) return chosenHelper();
    const QString application = QCoreApplication::applicationDirPath();
    const QString beside = application + QStringLiteral("/vestrola-pst");
    return QFileInfo::exists(beside)
               ? beside
               : QDir::cleanPath(application + QStringLiteral("/../libexec/vestrola/vestrola-pst"));
}

void setOutlookHelper(const QString& program) {
    chosenHelper() = program;
}

Result<ContactFolder> readContactFolder(const QString& path, std::chrono::milliseconds patience) {
    QProcess helper;
    helper.setProgram(outlookHelper());
    helper.setArguments({QFileInfo(path).absoluteFilePath()});
    helper.setStandardInputFile(QProcess::nullDevice());
    helper.setStandardErrorFile(QProcess::nullDevice());
    const QDeadlineTimer deadline(patience);
    helper.start(QIODevice::ReadOnly);
    QByteArray output;
    while (output.size() < largestOutput &&
           helper.waitForReadyRead(static_cast<int>(deadline.remainingTime()))) {
        output += helper.readAllStandardOutput();
    }
    output += helper.readAllStandardOutput();
    const bool started = helper.error() != QProcess::FailedToStart;
    helper.kill();
    helper.waitForFinished();

    if (auto folder = readHelperOutput(output)) return *std::move(folder);
    if (!started) return Status(ErrorCode::FileNotFound, QStringLiteral("Il lettore di Outlook non c'è."));
    if (deadline.hasExpired()) {
        return Status(ErrorCode::Timeout, QStringLiteral("Outlook non ha risposto in tempo."));
    }
    return Status(ErrorCode::UnrecognizedFormat, QStringLiteral("I contatti di Outlook non sono leggibili."));
}

}  // namespace contacts
