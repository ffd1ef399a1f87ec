#include "platform/ui/SourceEdit.h"

#include <QEvent>
#include <QHBoxLayout>

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

SourceEdit::SourceEdit(QWidget* parent) : QWidget(parent), m_edit(new QsciScintilla(this)) {
    m_edit->setObjectName("sourceText");
    m_edit->setFrameShape(QFrame::NoFrame);
    m_edit->setUtf8(true);
    m_edit->setLexer(new QsciLexerHTML(m_edit));
    m_edit->setMarginType(lineNumbers, QsciScintilla::NumberMargin);
    m_edit->setMarginWidth(otherMargin, 0);
    m_edit->setTabWidth(4);
    // The pop-up menu is the window's; the keys of its commands are the window's as well.
    m_edit->setContextMenuPolicy(Qt::CustomContextMenu);
    auto* area = new QHBoxLayout(this);
    area->setContentsMargins(0, 0, 0, 0);
    area->addWidget(m_edit);
    setFocusProxy(m_edit);
    setText({});

    m_edit->viewport()->installEventFilter(this);
    connect(m_edit, &QsciScintilla::selectionChanged, this, &SourceEdit::selectionChanged);
    connect(m_edit, &QsciScintilla::textChanged, this, &SourceEdit::textChanged);
    connect(m_edit, &QsciScintilla::cursorPositionChanged, this, [this] { Q_EMIT selectionChanged(); });
    connect(m_edit, &QsciScintilla::linesChanged, this, [this] {
        m_edit->setMarginWidth(lineNumbers, QString(QString::number(m_edit->lines()).size() + 1, u'0'));
    });
    connect(m_edit, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& place) { Q_EMIT contextMenuRequested(m_edit->mapToGlobal(place)); });
}

QString SourceEdit::Text() const {
    return m_edit->text();
}

qsizetype SourceEdit::length() const {
    return m_edit->length();
}

void SourceEdit::setText(const QString& text) {
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
    switch (command) {
        case Undo:
            m_edit->undo();
            break;
        case SelectAll:
            m_edit->selectAll();
            break;
        case Redo:
            m_edit->redo();
            break;
        case Paste:
            m_edit->paste();
            break;
        case Cut:
            m_edit->cut();
            break;
        case Copy:
            m_edit->copy();
            break;
        default:
            break;
    }
}

bool SourceEdit::CanCut() const {
    return m_edit->hasSelectedText();
}

bool SourceEdit::CanCopy() const {
    return m_edit->hasSelectedText();
}

bool SourceEdit::CanPaste() const {
    return m_edit->SendScintilla(QsciScintilla::SCI_CANPASTE) != 0;
}

bool SourceEdit::CanUndo() const {
    return m_edit->isUndoAvailable();
}

bool SourceEdit::CanRedo() const {
    return m_edit->isRedoAvailable();
}

bool SourceEdit::find(const QString& text, bool caseSensitive, bool backwards) {
    int line = -1;
    int column = -1;
    // Backwards the search starts at the near end of the selection, or it would find the same place again.
    if (backwards && m_edit->hasSelectedText()) {
        int endLine = 0;
        int endColumn = 0;
        m_edit->getSelection(&line, &column, &endLine, &endColumn);
    }
    return m_edit->findFirst(text, false, caseSensitive, false, true, !backwards, line, column);
}

void SourceEdit::setFontName(const QString& family) {
    QFont font(family, fontSize);
    font.setStyleHint(QFont::Monospace);
    m_edit->lexer()->setDefaultFont(font);
    m_edit->lexer()->setFont(font);
    m_edit->setMarginsFont(font);
}

void SourceEdit::setColours(const Colours& colours) {
    m_edit->setMarginsBackgroundColor(colours.margin);
    m_edit->setMarginsForegroundColor(colours.marginText);
    m_edit->setSelectionBackgroundColor(colours.selection);
    m_edit->setSelectionForegroundColor(colours.selectedText);
}

bool SourceEdit::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) Q_EMIT mouseUp();
    if (event->type() == QEvent::Enter) Q_EMIT pointerEntered();
    return QWidget::eventFilter(watched, event);
}

}  // namespace ui
