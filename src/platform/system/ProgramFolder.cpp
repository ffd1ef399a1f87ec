// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/ProgramFolder.h"

#include <sys/stat.h>

#include <algorithm>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "platform/system/OwnFile.h"
#include "platform/system/OwnProgram.h"
#include "platform/text/Words.h"

namespace sys {

namespace {

QString& chosenFolder() {
    static QString folder;
    return folder;
}

QString& chosenHelp() {
    static QString folder;
    return folder;
}

bool& newFolder() {
    static bool isNew = false;
    return isNew;
}

QString withSlash(const QString& folder) {
    return folder.endsWith(u'/') ? folder : folder + u'/';
}

bool copyFile(const QFileInfo& file, const QString& folder) {
    const QString target = folder + u'/' + file.fileName();
    if (QFileInfo::exists(target)) return true;
    QFile source(file.filePath());
    return source.open(QFile::ReadOnly) && replaceOwnFile(target, source.readAll()).ok();
}

bool copyFiles(const QString& from, const QString& to) {
    const auto files = QDir(from).entryInfoList(QDir::Files);
    return std::all_of(files.begin(), files.end(), [&](const QFileInfo& file) { return copyFile(file, to); });
}

/// Empty for a file that cannot be read.
QByteArray digestOf(const QString& path) {
    QFile file(path);
    QCryptographicHash digest(QCryptographicHash::Sha256);
    return file.open(QFile::ReadOnly) && digest.addData(&file) ? digest.result().toHex() : QByteArray();
}

Status replaceFile(const QString& path, const QByteArray& bytes) {
    if (replaceOwnFile(path, bytes).ok()) return {};
    return {ErrorCode::PathAccess, Words::tr("Impossibile scrivere il file ") + path};
}

bool makeFolder(const QString& folder) {
    return QDir().mkpath(QFileInfo(folder).path()) && makeOwnFolder(folder).ok();
}

/// Makes an empty folder of the user's own, replacing whatever had its name. A link is removed; its target
/// stays.
bool makeAnew(const QString& folder) {
    const QFileInfo there(folder);
    const bool gone =
        there.isSymLink() || there.isFile() ? QFile::remove(folder) : QDir(folder).removeRecursively();
    return gone && ::mkdir(QFile::encodeName(folder).constData(), 0700) == 0;
}

/// Copies a file of the templates to where the folder has none.
Status restoreFile(const QString& folder, const QString& templates, const QString& name) {
    const QFileInfo installed(templates + name);
    const QFileInfo own(folder + name);
    // A dangling link was put there on purpose.
    if (!installed.isFile() || own.exists() || own.isSymLink()) return {};
    if (makeFolder(own.path()) && copyFile(installed, own.path())) return {};
    return {ErrorCode::PathAccess, Words::tr("Impossibile scrivere il file ") + own.filePath()};
}

}  // namespace

QString installedTemplates(const QString& applicationFolder) {
    return QDir::cleanPath(applicationFolder + QStringLiteral("/../share/vestrola/templates"));
}

QString templatesOf(const QString& applicationFolder) {
    const QString beside = applicationFolder + QStringLiteral("/templates");
    return QFileInfo(beside).isDir() ? beside : installedTemplates(applicationFolder);
}

QString helpFolder() {
    if (!chosenHelp().isEmpty()) return chosenHelp();
    const QString application = applicationFolder();
    const QString beside = application + QStringLiteral("/help/");
    return QFileInfo::exists(beside + QStringLiteral("index.html"))
               ? beside
               : QDir::cleanPath(application + QStringLiteral("/../share/vestrola/help")) + u'/';
}

void setHelpFolder(const QString& folder) {
    chosenHelp() = folder.isEmpty() ? folder : withSlash(folder);
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
    const bool filled = (QFileInfo(folder).isDir() || makeFolder(folder)) && makeAnew(unfinished) &&
                        copyFiles(templates, folder) &&
                        copyFiles(templates + QStringLiteral("/data"), unfinished) &&
                        QDir().rename(unfinished, data);
    return filled ? Status()
                  : Status(ErrorCode::PathAccess, Words::tr("Impossibile preparare la cartella ") + folder);
}

Status renewTexts(const QString& folder, const QString& templates) {
    const QString texts = QStringLiteral("/LANG.lng");
    const QString notePath = folder + QStringLiteral("/data/LANG.imp");
    const QByteArray installed = digestOf(templates + texts);
    QFile note(notePath);
    const QByteArray noted = note.open(QFile::ReadOnly) ? note.readAll().trimmed() : QByteArray();
    const QByteArray own = digestOf(folder + texts);
    if (installed.isEmpty() || noted == installed || (own != installed && own != noted)) return {};
    if (own != installed) {
        QFile newer(templates + texts);
        if (!newer.open(QFile::ReadOnly)) return {};
        if (Status status = replaceFile(folder + texts, newer.readAll()); !status.ok()) return status;
    }
    return replaceFile(notePath, installed + "\r\n");
}

Status restoreTexts(const QString& folder, const QString& templates) {
    return restoreFile(folder, templates, QStringLiteral("/LANG.lng"));
}

Status restoreProviders(const QString& folder, const QString& templates) {
    if (!QFileInfo::exists(folder + QStringLiteral("/data"))) return {};
    return restoreFile(folder, templates, QStringLiteral("/data/oauth/providers.json"));
}

QString programFolder() {
    QString& folder = chosenFolder();
    if (!folder.isEmpty()) return folder;
    const QString wanted = qEnvironmentVariable("VESTROLA_FOLDER");
    if (!wanted.isEmpty()) {
        folder = withSlash(wanted);
        return folder;
    }
    const QString application = applicationFolder();
    const QString chosen = chooseProgramFolder(
        application, QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    const QString templates = templatesOf(application);
    // What was prepared for the first start is in the folder by then; the log records starts.
    newFolder() = !QFileInfo::exists(chosen + QStringLiteral("/Error.txt"));
    static_cast<void>(fillProgramFolder(chosen, templates));
    static_cast<void>(renewTexts(chosen, templates));
    if (chosen != application) static_cast<void>(restoreTexts(chosen, templates));
    static_cast<void>(restoreProviders(chosen, templates));
    folder = withSlash(chosen);
    return folder;
}

bool programFolderIsNew() {
    return newFolder();
}

void setProgramFolder(const QString& folder) {
    chosenFolder() = folder.isEmpty() ? folder : withSlash(folder);
}

}  // namespace sys
