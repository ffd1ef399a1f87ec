// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QWidget>

class QTreeWidget;
namespace ui {
class CommandBars;
}

/// The attachments of the message on show, docked in the pane "dckAllegati" of the editor. The list is their
/// only store: a message file is written straight from it.
class frmAllegati : public QWidget {
    Q_OBJECT

  public:
    /// `barre` of the editor, which outlive the window, contain its commands, its menu and the status text.
    explicit frmAllegati(ui::CommandBars& barre, QWidget* parent = nullptr);

    /// Empties rows and columns and adds the three columns "File", "Size" and "Path".
    void IniList();
    void ClearList() { IniList(); }
    /// Adds a file as the last row. Unguarded: fails for one whose size is unknown.
    void InsFile(const QString& percorso);
    /// Takes the selected row away. Unguarded: fails when none is.
    void TogliScelto();
    /// The column "Path", from top to bottom.
    QStringList Percorsi() const;

    QTreeWidget* const LIST;

    bool eventFilter(QObject* osservato, QEvent* che) override;

  private:
    enum Colonna { File = 0, Size = 1, Path = 2 };

    void LISTMouseUp(Qt::MouseButton pulsante, const QPoint& punto);

    ui::CommandBars& barreEditor;
};
