// SPDX-License-Identifier: GPL-3.0-or-later
#include <utility>

#include "platform/html/HtmlViewLive.h"

// The commands of a view: whether they are available now, and how they are run.

Result<QString> HtmlView::Live::freshState(const QString& name) {
    awaitStrokes();
    const Result<QVariant> fresh = ask(QStringLiteral("editor.commands.state()"));
    if (!fresh.ok()) return fresh.status();
    if (!fresh.value().toMap().isEmpty()) takeState(fresh.value().toMap());
    return state.value(name).toString();
}

Result<QString> HtmlView::Live::fontName() {
    Result<QString> name = freshState(QStringLiteral("fontName"));
    return name.ok() ? shownFontName() : name;
}

QString HtmlView::Live::shownFontName() const {
    const QString name = state.value(QStringLiteral("fontName")).toString();
    return !m_standardFont.isEmpty() && name == m_standardFont ? m_defaultFont : name;
}

void HtmlView::Live::takeState(const QVariantMap& newer) {
    state = newer;
    m_strokesSeen = newer.value(QStringLiteral("strokes")).toInt();
    m_strokes = qMax(m_strokes, m_strokesSeen);
}

HtmlView::CommandStatus HtmlView::Live::status(int command) const {
    const auto holds = [this](const char* name) { return state.value(QLatin1String(name)).toBool(); };
    const bool editable = live && mode == Mode::Design;
    const auto enabled = [](bool yes) { return yes ? Enabled : Disabled; };
    switch (command) {
        case Bold:
        case Italic:
        case Underline:
        case JustifyLeft:
        case JustifyCenter:
        case JustifyRight:
        case OrderList:
        case UnorderList:
            if (editable && state.value(QStringLiteral("latched")).toList().contains(command)) return Latched;
            return enabled(editable && holds("present"));
        case Indent:
        case Outdent:
        case SetFontName:
        case SetFontSize:
        case SetForeColor:
        case Paste:
        case Image:
        case Hyperlink:
        case Properties:
            return enabled(editable && holds("present"));
        case DeleteCols:
        case DeleteRows:
        case InsertCol:
        case InsertRow:
            return enabled(editable && holds("table"));
        case Cut:
            return enabled(editable && holds("selected"));
        case Copy:
            return enabled(live && holds("selected"));
        case Undo:
            return enabled(editable && holds("undo"));
        case Redo:
            return enabled(editable && holds("redo"));
        case GetFontName:
        case GetFontSize:
        case GetForeColor:
            return enabled(live && holds("present"));
        case SelectAll:
        case FindText:
            return enabled(live);
        default:
            return Unsupported;
    }
}

// The browser writes no font that the text is shown in anyway, and a font that is only shown reaches no
// recipient. It finds a family in any case of letters, but treats two spellings as two fonts.
void HtmlView::Live::setDefaultFont(const QString& family) {
    m_defaultFont = family;
}

void HtmlView::Live::showMarks(const QString& name, bool on) {
    marks[name] = on;
    if (live) browser.run(QStringLiteral("editor.marks.show(%1)").arg(arguments({name, on})), [](auto&) {});
}
