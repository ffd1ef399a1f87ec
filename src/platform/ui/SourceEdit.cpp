// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/SourceEdit.h"

#include <QEvent>
#include <QHBoxLayout>
#include <utility>

// The library's headers are written with the keywords that are off in this project.
#define signals Q_SIGNALS
#define slots Q_SLOTS
#include <Qsci/qscilexerhtml.h>
#include <Qsci/qsciscintilla.h>
#undef signals
#undef slots

namespace ui {

namespace {

constexpr int lineNumbers = 0;
constexpr int otherMargin = 1;
constexpr int fontSize = 10;

/// The line ends of most use in a text; of the system where it has none.
QsciScintilla::EolMode lineEndsOf(const QString& text) {
    return text.contains(QLatin1String("\r\n")) ? QsciScintilla::EolWindows : QsciScintilla::EolUnix;
}

}  // namespace

SourceEdit::SourceEdit(QWidget* parent) : QWidget(parent) {
    auto* area = new QHBoxLayout(this);
    area->setContentsMargins(0, 0, 0, 0);
}

QsciScintilla& SourceEdit::edit() {
    if (m_edit) return *m_edit;
    m_edit = new QsciScintilla(this);
    m_edit->setObjectName("sourceText");
    m_edit->setAccessibleName(m_spokenName);
    m_edit->setFrameShape(QFrame::NoFrame);
    m_edit->setUtf8(true);
    m_edit->setLexer(new QsciLexerHTML(m_edit));
    m_edit->setMarginType(lineNumbers, QsciScintilla::NumberMargin);
    m_edit->setMarginWidth(otherMargin, 0);
    m_edit->setTabWidth(4);
    // The pop-up menu is the window's; the keys of its commands are the window's as well.
    m_edit->setContextMenuPolicy(Qt::CustomContextMenu);
    layout()->addWidget(m_edit);
    setFocusProxy(m_edit);
    applyFont();
    applyColours();
    connect(m_edit, &QsciScintilla::linesChanged, this, [this] {
        m_edit->setMarginWidth(lineNumbers, QString(QString::number(m_edit->lines()).size() + 1, u'0'));
    });
    fill(std::exchange(m_text, {}));

    m_edit->viewport()->installEventFilter(this);
    connect(m_edit, &QsciScintilla::selectionChanged, this, &SourceEdit::selectionChanged);
    connect(m_edit, &QsciScintilla::textChanged, this, &SourceEdit::textChanged);
    connect(m_edit, &QsciScintilla::cursorPositionChanged, this, [this] { Q_EMIT selectionChanged(); });
    connect(m_edit, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& place) { Q_EMIT contextMenuRequested(m_edit->mapToGlobal(place)); });
    return *m_edit;
}

void SourceEdit::showEvent(QShowEvent* event) {
    edit();
    QWidget::showEvent(event);
}

QString SourceEdit::Text() const {
    return m_edit ? m_edit->text() : m_text;
}

qsizetype SourceEdit::length() const {
    return m_edit ? m_edit->length() : m_text.toUtf8().size();
}

void SourceEdit::setText(const QString& text) {
    if (m_edit) return fill(text);
    const qsizetype end = text.indexOf(QChar(u'\0'));
    const QString whole = end < 0 ? text : text.left(end);
    if (whole == m_text) return;
    m_text = whole;
    Q_EMIT textChanged();
}

void SourceEdit::fill(const QString& text) {
    m_edit->setEolMode(lineEndsOf(text));
    // While lines wrap, a new text has all of its lines laid out at once, and a caret that is moved its own
    // line, which may be the whole text. Afterwards those in sight are, and the others in idle time.
    m_edit->setWrapMode(QsciScintilla::WrapNone);
    m_edit->setText(text);
    m_edit->SendScintilla(QsciScintilla::SCI_SETEMPTYSELECTION, 0UL);
    m_edit->SendScintilla(QsciScintilla::SCI_SETFIRSTVISIBLELINE, 0UL);
    m_edit->SendScintilla(QsciScintilla::SCI_SETXOFFSET, 0UL);
    m_edit->setWrapMode(QsciScintilla::WrapWord);
    // What a text replaces cannot be taken back.
    m_edit->SendScintilla(QsciScintilla::SCI_EMPTYUNDOBUFFER);
}

void SourceEdit::execute(int command) {
    QsciScintilla& edit = this->edit();
    switch (command) {
        case Undo:
            edit.undo();
            break;
        case SelectAll:
            edit.selectAll();
            break;
        case Redo:
            edit.redo();
            break;
        case Paste:
            edit.paste();
            break;
        case Cut:
            edit.cut();
            break;
        case Copy:
            edit.copy();
            break;
        default:
            break;
    }
}

bool SourceEdit::CanCut() const {
    return m_edit && m_edit->hasSelectedText();
}

bool SourceEdit::CanCopy() const {
    return m_edit && m_edit->hasSelectedText();
}

bool SourceEdit::CanPaste() const {
    return m_edit && m_edit->SendScintilla(QsciScintilla::SCI_CANPASTE) != 0;
}

bool SourceEdit::CanUndo() const {
    return m_edit && m_edit->isUndoAvailable();
}

bool SourceEdit::CanRedo() const {
    return m_edit && m_edit->isRedoAvailable();
}

bool SourceEdit::find(const QString& text, bool caseSensitive, bool backwards) {
    QsciScintilla& edit = this->edit();
    int line = -1;
    int column = -1;
    // Backwards the search starts at the near end of the selection, or it would find the same place again.
    if (backwards && edit.hasSelectedText()) {
        int endLine = 0;
        int endColumn = 0;
        edit.getSelection(&line, &column, &endLine, &endColumn);
    }
    return edit.findFirst(text, false, caseSensitive, false, true, !backwards, line, column);
}

void SourceEdit::setSpokenName(const QString& name) {
    m_spokenName = name;
    if (m_edit) m_edit->setAccessibleName(name);
}

void SourceEdit::setFontName(const QString& family) {
    m_family = family;
    applyFont();
}

void SourceEdit::applyFont() {
    if (!m_edit || m_family.isEmpty()) return;
    QFont font(m_family, fontSize);
    font.setStyleHint(QFont::Monospace);
    m_edit->lexer()->setDefaultFont(font);
    m_edit->lexer()->setFont(font);
    m_edit->setMarginsFont(font);
}

void SourceEdit::setColours(const Colours& colours) {
    m_colours = colours;
    applyColours();
}

void SourceEdit::applyColours() {
    if (!m_edit || !m_colours) return;
    m_edit->setMarginsBackgroundColor(m_colours->margin);
    m_edit->setMarginsForegroundColor(m_colours->marginText);
    m_edit->setSelectionBackgroundColor(m_colours->selection);
    m_edit->setSelectionForegroundColor(m_colours->selectedText);
}

bool SourceEdit::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) Q_EMIT mouseUp();
    if (event->type() == QEvent::Enter) Q_EMIT pointerEntered();
    return QWidget::eventFilter(watched, event);
}

}  // namespace ui
