// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/contacts/ContactFolder.h"

#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <QCoreApplication>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include "platform/contacts/HelperOutput.h"
#include "platform/system/OwnProgram.h"
#include "platform/system/ProgramFolder.h"
#include "platform/text/Words.h"

namespace contacts {

namespace {

constexpr std::chrono::milliseconds betweenQuestions{20};

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
    const QString application = sys::applicationFolder();
    const QString beside = application + QStringLiteral("/vestrola-pst");
    return QFileInfo::exists(beside)
               ? beside
               : QDir::cleanPath(application + QStringLiteral("/../libexec/vestrola/vestrola-pst"));
}

void setOutlookHelper(const QString& program) {
    chosenHelper() = program;
}

QStringList allWalls() {
    return {QStringLiteral("files"), QStringLiteral("calls"), QStringLiteral("memory")};
}

Result<ContactFolder> readContactFolder(const QString& path, std::chrono::milliseconds patience,
                                        const std::function<bool(std::chrono::milliseconds waited)>& goOn) {
    using std::chrono::milliseconds;
    QProcess helper;
    const QStringList command = sys::commandOf(outlookHelper());
    helper.setProgram(command.first());
    helper.setArguments(command.sliced(1) << QFileInfo(path).absoluteFilePath());
    helper.setStandardInputFile(QProcess::nullDevice());
    helper.setStandardErrorFile(QProcess::nullDevice());
    helper.setChildProcessModifier([] { ::setsid(); });  // its own process group
    const QDeadlineTimer deadline(patience);
    helper.start(QIODevice::ReadOnly);
    const bool started = helper.waitForStarted(static_cast<int>(patience.count()));
    const auto group = static_cast<pid_t>(helper.processId());
    HelperOutput output;
    bool wanted = started;
    bool givenUp = false;
    while (wanted && !deadline.hasExpired()) {
        const milliseconds left(deadline.remainingTime());
        helper.waitForReadyRead(static_cast<int>(std::min(left, betweenQuestions).count()));
        const bool ended = helper.state() == QProcess::NotRunning;
        wanted = output.take(helper.readAllStandardOutput()) && !ended;
        givenUp = goOn && !goOn(patience - milliseconds(deadline.remainingTime()));
        wanted = wanted && !givenUp;
    }
    if (group > 0) ::kill(-group, SIGKILL);
    helper.kill();
    helper.waitForFinished();

    if (givenUp) return Status(ErrorCode::CancelSelected, Words::tr("Lettura interrotta."));
    if (auto folder = std::move(output).folder()) return *std::move(folder);
    if (!started) return Status(ErrorCode::FileNotFound, Words::tr("Il lettore di Outlook non c'è."));
    if (deadline.hasExpired()) {
        return Status(ErrorCode::Timeout, Words::tr("Outlook non ha risposto in tempo."));
    }
    return Status(ErrorCode::UnrecognizedFormat, Words::tr("I contatti di Outlook non sono leggibili."));
}

}  // namespace contacts
