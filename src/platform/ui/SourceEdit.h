// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QWidget>

class QsciScintilla;

namespace ui {

/// Editor for the source text of an HTML document: colours for tags, attributes, values and comments, line
/// numbers, undo, find.
///
/// The text is returned as it was set; line ends that are typed are those that the text has.
///
/// The control that edits is made when it is first shown, or first asked for what only it can do; until then
/// this keeps the text alone.
class SourceEdit : public QWidget {
    Q_OBJECT

  public:
    /// Numbers of the commands, as published for source code editing controls.
    enum Command : int {
        Undo = 129,
        SelectAll = 137,
        Redo = 139,
        Paste = 140,
        FindText = 178,  ///< nothing happens: call find()
        Cut = 197,
        Copy = 198,
    };

    struct Colours {
        QColor margin;      ///< ground of the line numbers
        QColor marginText;  ///< line numbers
        QColor selection;   ///< ground of what is selected
        QColor selectedText;
    };

    explicit SourceEdit(QWidget* parent = nullptr);

    QString Text() const;
    /// In bytes, as a measure of what Text() costs.
    qsizetype length() const;
    /// Drops the undo list and puts the caret at the start. A character of code 0 ends the text.
    void setText(const QString& text);

    void execute(int command);
    bool CanCut() const;
    bool CanCopy() const;
    bool CanPaste() const;
    bool CanUndo() const;
    bool CanRedo() const;

    /// Selects the next occurrence after (before) the selection, round the end of the text if need be. False
    /// when there is none.
    bool find(const QString& text, bool caseSensitive, bool backwards);

    void setFontName(const QString& family);
    void setColours(const Colours& colours);

    /// The name of the text for assistive programs.
    void setSpokenName(const QString& name);

    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    void selectionChanged();
    /// By the user or by setText().
    void textChanged();
    void mouseUp();
    void contextMenuRequested(const QPoint& globalPosition);
    void pointerEntered();

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    QsciScintilla& edit();
    void fill(const QString& text);
    void applyFont();
    void applyColours();

    QsciScintilla* m_edit = nullptr;
    QString m_text;  ///< while there is no control
    QString m_spokenName;
    QString m_family;
    std::optional<Colours> m_colours;
};

}  // namespace ui
