// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QList>
#include <QString>
#include <QStringList>

namespace ui {

/// The one way to ask for a file. A cancelled dialog returns an empty optional. The first dialog of a run
/// starts in the user's documents, each later one where the last one ended. Afterwards the window that was
/// active before has the keyboard again.
///
/// Filters are written "Description|*.ext|Description|*.ext|", with or without the closing bar; several
/// patterns of one filter are separated by ";". The first pattern's extension is the default suffix of a
/// save.
class FileDialog {
  public:
    /// What a save does about a file that exists already.
    enum class Existing { Ask, Accept };

    /// A dialog as it was shown; `answer` is empty where it was cancelled.
    struct Shown {
        bool save = false;
        QString title;
        QString filter;
        QString proposal;  ///< of a save: the name that is in the box at first
        std::optional<QString> answer;
    };

    /// Asks for an existing file.
    static std::optional<QString> open(const QString& title, const QString& filter);
    /// Asks for a file to write; a name without suffix gets the default one. `proposal`, a name or a whole
    /// path, is in the box at first. Existing::Ask puts the question before an existing file is taken,
    /// and asks for another name on No.
    static std::optional<QString> save(const QString& title, const QString& filter,
                                       const QString& proposal = {}, Existing existing = Existing::Ask);

    /// The filters in Qt's way of writing, and the default suffix (without point; empty where there is none).
    static QStringList nameFilters(const QString& filter);
    static QString defaultSuffix(const QString& filter);

    /// For unattended runs: the next dialog's answer. A dialog that meets an empty queue ends the program.
    static void queue(const QString& path);
    static void queueCancel();
    static int queued();
    /// Every dialog since the last reset().
    static const QList<Shown>& shown();
    static void reset();
};

}  // namespace ui
