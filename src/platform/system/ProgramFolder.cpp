#include "platform/system/ProgramFolder.h"

#include <algorithm>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace sys {

namespace {

QString& chosenFolder() {
    static QString folder;
    return folder;
}

QString withSlash(const QString& folder) {
    return folder.endsWith(u'/') ? folder : folder + u'/';
}

bool makeOwnFolder(const QString& path) {
    return QDir().mkpath(path) &&
           QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

bool copyFile(const QFileInfo& file, const QString& folder) {
    const QString target = folder + u'/' + file.fileName();
    if (QFileInfo::exists(target)) return true;
    return QFile::copy(file.filePath(), target) &&
           QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
}

bool copyFiles(const QString& from, const QString& to) {
    if (!QFileInfo(to).isDir() && !makeOwnFolder(to)) return false;
    const auto files = QDir(from).entryInfoList(QDir::Files);
    return std::all_of(files.begin(), files.end(), [&](const QFileInfo& file) { return copyFile(file, to); });
}

}  // namespace

QString installedTemplates(const QString& applicationFolder) {
    return QDir::cleanPath(applicationFolder + QStringLiteral("/../share/vestrola/templates"));
}

QString helpPage() {
    const QString application = QCoreApplication::applicationDirPath();
    const QString beside = application + QStringLiteral("/help/index.html");
    return QFileInfo::exists(beside)
               ? beside
               : QDir::cleanPath(application + QStringLiteral("/../share/vestrola/help/index.html"));
}

QString chooseProgramFolder(const QString& applicationFolder, const QString& userData) {
    const bool installed = QFileInfo(installedTemplates(applicationFolder)).isDir();
    if (!installed && QFileInfo(applicationFolder).isWritable()) return applicationFolder;
    return userData + QStringLiteral("/vestrola");
}

Status fillProgramFolder(const QString& folder, const QString& templates) {
    const QString data = folder + QStringLiteral("/data");
    if (QFileInfo::exists(data)) return {};
    const QString unfinished = data + QStringLiteral(".nuova");
    QDir(unfinished).removeRecursively();
    const bool filled = copyFiles(templates, folder) &&
                        copyFiles(templates + QStringLiteral("/data"), unfinished) &&
                        QDir().rename(unfinished, data);
    return filled
               ? Status()
               : Status(ErrorCode::PathAccess, QStringLiteral("Impossibile preparare la cartella ") + folder);
}

QString programFolder() {
    QString& folder = chosenFolder();
    if (!folder.isEmpty()) return folder;
    const QString wanted = qEnvironmentVariable("VESTROLA_FOLDER");
    if (!wanted.isEmpty()) {
        folder = withSlash(wanted);
        return folder;
    }
    const QString application = QCoreApplication::applicationDirPath();
    const QString chosen = chooseProgramFolder(
        application, QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    static_cast<void>(fillProgramFolder(chosen, installedTemplates(application)));
    folder = withSlash(chosen);
    return folder;
}

void setProgramFolder(const QString& folder) {
    chosenFolder() = folder.isEmpty() ? folder : withSlash(folder);
}

}  // namespace sys
