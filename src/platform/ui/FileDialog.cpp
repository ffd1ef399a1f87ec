// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/FileDialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>
#include <QStandardPaths>

#include "platform/ui/DialogOwner.h"
#include "platform/ui/LineEdit.h"
#include "platform/ui/Unattended.h"

namespace ui {

namespace {

QList<std::optional<QString>> queuedPaths;
QList<FileDialog::Shown> shownDialogs;
QString lastFolder;

QString startFolder() {
    if (!lastFolder.isEmpty() && QFileInfo(lastFolder).isDir()) return lastFolder;
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

QString withSuffix(const QString& path, const QString& suffix) {
    if (suffix.isEmpty() || QFileInfo(path).fileName().contains('.')) return path;
    return path + '.' + suffix;
}

std::optional<QString> runDialog(QFileDialog& dialog, const FileDialog::Shown& asked) {
    dialog.setObjectName("fileDialog");
    dialog.setWindowTitle(asked.title);
    dialog.setNameFilters(FileDialog::nameFilters(asked.filter));
    for (QLineEdit* box : dialog.findChildren<QLineEdit*>())
        LineEdit::keepToOneLine(*box);
    // The suffix is added, and the question about an existing file put, outside the dialog: a desktop's own
    // dialog would look at the name before it has its suffix.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    keepAboveOwner(dialog);
    const QPointer<QWidget> before = dialogOwner();
    const bool accepted = dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty();
    // Left to itself the desktop may give the keyboard to no window, after a list of names was open.
    if (before && !before->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus)) before->activateWindow();
    if (!accepted) return std::nullopt;
    const QString path = dialog.selectedFiles().constFirst();
    lastFolder = QFileInfo(path).absolutePath();
    return path;
}

bool mayReplace(const QString& path) {
    QMessageBox question(QMessageBox::Warning, QFileDialog::tr("Save As"),
                         QFileDialog::tr("%1 already exists.\nDo you want to replace it?").arg(path),
                         QMessageBox::Yes | QMessageBox::No, dialogOwner());
    question.setTextFormat(Qt::PlainText);
    question.setDefaultButton(QMessageBox::No);
    keepAboveOwner(question);
    return question.exec() == QMessageBox::Yes;
}

std::optional<QString> openByUser(const FileDialog::Shown& asked) {
    QFileDialog dialog(dialogOwner(), QString(), startFolder());
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return runDialog(dialog, asked);
}

std::optional<QString> saveByUser(const FileDialog::Shown& asked, FileDialog::Existing existing) {
    const QString suffix = FileDialog::defaultSuffix(asked.filter);
    QString start = asked.proposal;
    for (;;) {
        QFileDialog dialog(dialogOwner(), QString(), startFolder());
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setFileMode(QFileDialog::AnyFile);
        if (!start.isEmpty()) dialog.selectFile(start);
        const auto answer = runDialog(dialog, asked);
        if (!answer) return std::nullopt;
        start = withSuffix(*answer, suffix);
        if (existing == FileDialog::Existing::Accept || !QFileInfo::exists(start) || mayReplace(start))
            return start;
    }
}

std::optional<QString> queuedAnswer(const FileDialog::Shown& asked) {
    if (queuedPaths.isEmpty()) failUnanswered("file dialog", qUtf8Printable(asked.title));
    auto answer = queuedPaths.takeFirst();
    if (answer && asked.save) answer = withSuffix(*answer, FileDialog::defaultSuffix(asked.filter));
    return answer;
}

}  // namespace

std::optional<QString> FileDialog::open(const QString& title, const QString& filter) {
    Shown asked{false, title, filter, {}, std::nullopt};
    asked.answer = unattended() ? queuedAnswer(asked) : openByUser(asked);
    shownDialogs.append(asked);
    return asked.answer;
}

std::optional<QString> FileDialog::save(const QString& title, const QString& filter, const QString& proposal,
                                        Existing existing) {
    Shown asked{true, title, filter, proposal, std::nullopt};
    asked.answer = unattended() ? queuedAnswer(asked) : saveByUser(asked, existing);
    shownDialogs.append(asked);
    return asked.answer;
}

QStringList FileDialog::nameFilters(const QString& filter) {
    const QStringList pieces = filter.split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < pieces.size(); i += 2) {
        const QString description = pieces[i].trimmed();
        const QString patterns = QString(pieces[i + 1]).replace(';', ' ').simplified();
        const QString bracketed = '(' + patterns + ')';
        filters << (description.endsWith(bracketed) ? description
                                                    : QString(description + ' ' + bracketed).trimmed());
    }
    return filters;
}

QString FileDialog::defaultSuffix(const QString& filter) {
    const QString pattern = filter.section('|', 1, 1).section(';', 0, 0).trimmed();
    const QString suffix = pattern.section('.', -1);
    return pattern.contains('.') && !suffix.contains('*') ? suffix : QString();
}

void FileDialog::queue(const QString& path) {
    queuedPaths.append(path);
}

void FileDialog::queueCancel() {
    queuedPaths.append(std::nullopt);
}

int FileDialog::queued() {
    return static_cast<int>(queuedPaths.size());
}

const QList<FileDialog::Shown>& FileDialog::shown() {
    return shownDialogs;
}

void FileDialog::reset() {
    queuedPaths.clear();
    shownDialogs.clear();
}

}  // namespace ui
