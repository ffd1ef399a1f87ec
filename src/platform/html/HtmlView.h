// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <QList>
#include <QPair>
#include <QPoint>
#include <QString>
#include <QVariant>
#include <QWidget>

#include "platform/Status.h"

class QPrinter;

/// Design and browse view of an HTML document.
///
/// The view keeps its text alone until it is first shown or first asked for something that only a browser
/// knows (a command, a selection). Then the browser plug-in is loaded with the text; creating a view costs
/// nothing.
///
/// All calls are synchronous: they return when the browser's process has done the work. While they wait (at
/// most a few seconds, usually about a millisecond) timers and sockets continue and the user's input is
/// delayed; a longer wait shows the hourglass. When the browser's process dies, it is started again with the
/// text that was last known; the undo list is empty then.
///
/// A browser that does not answer in time is a failure of the call (Timeout): a query has no result,
/// never an outdated one; a change may still happen when the browser continues. The time in which it waits
/// for a processor, on a machine that is busy with other things, does not count. After such a failure the
/// next calls but documentHTML() and responds() wait for a moment only, until the browser answers
/// again. A browser that cannot be loaded is a failure too (FileNotFound), except for the text of the
/// document.
///
/// Safety: page scripts and event handlers never run, nothing is fetched from a network, local and `data:`
/// images are shown, links, forms, refreshes, frames and dropped files never lead the view away.
///
/// Threads: the application's own only. Ownership: a widget like any other.
class HtmlView : public QWidget {
    Q_OBJECT

  public:
    enum class Mode {
        Design,  ///< the text can be edited
        Browse   ///< the text can be read, selected and copied
    };

    /// Command numbers, as published for HTML editing controls.
    enum Command : int {
        Bold = 5000,
        Copy = 5002,
        Cut = 5003,
        DeleteCols = 5006,
        DeleteRows = 5007,
        FindText = 5008,  ///< status only: call find()
        GetFontName = 5013,
        GetFontSize = 5014,
        GetForeColor = 5015,
        Hyperlink = 5016,  ///< status only: call setLink()
        Image = 5017,      ///< status only: call insertImage()
        Indent = 5018,
        InsertCol = 5020,
        InsertRow = 5021,
        Italic = 5023,
        JustifyCenter = 5024,
        JustifyLeft = 5025,
        JustifyRight = 5026,
        OrderList = 5030,
        Outdent = 5031,
        Paste = 5032,
        Redo = 5033,
        SelectAll = 5035,
        SetFontName = 5044,
        SetFontSize = 5045,
        SetForeColor = 5046,
        Underline = 5048,
        Undo = 5049,
        UnorderList = 5051,
        Properties = 5052  ///< status only: elementsAtCaret() and setElementAttributes()
    };

    /// What queryStatus() returns.
    enum CommandStatus : int {
        Unsupported = 0,
        Disabled = 1,
        Enabled = 3,
        Latched = 7  ///< enabled, and the selection has it already (bold text, a centred paragraph)
    };

    enum class PageColor { Background, Text, Link, ActiveLink, VisitedLink };

    enum FindFlag : unsigned { FindCaseSensitive = 1, FindBackwards = 2 };

    using Attributes = QList<QPair<QString, QString>>;  ///< name and value, in the order of the document

    struct Element {
        QString tag;  ///< lower case
        Attributes attributes;
    };

    struct ImageInfo {
        QString source;  ///< path of a local file, or an address; placeholders stay as they are
        QString alternativeText;
        QString width;   ///< as written in the attribute ("120", "50%"), empty for none
        QString height;  ///< likewise
        QString align;   ///< "left", "right", "top", "middle", "bottom" or empty
    };

    struct LinkInfo {
        QString address;            ///< as written; empty for no link
        bool unsubscribes = false;  ///< rel contains "unsubscribe" (RFC 2369)
    };

    explicit HtmlView(Mode mode, QWidget* parent = nullptr);
    ~HtmlView() override;

    // --- The document

    /// The document in its one normal form, the same that HtmlDocument returns for it: lines end in LF as in
    /// the document, and a character that is not in Windows-1252 is a numeric reference (in style sheets a
    /// CSS escape).
    Result<QString> documentHTML() const;

    /// Replaces the document, the undo list and the selection (the caret is at the start). Any text is a
    /// document that is not too large or too deep (platform/html/Bounds.h): such a one is refused (Overflow),
    /// and nothing changes. Ends in documentComplete(), during the call if the browser is there, else after
    /// it was loaded. After any other failure the document is replaced all the same, when the browser goes
    /// on.
    Status setDocumentHTML(const QString& html);

    /// Whether the browser answers now. True as well while the document is in no browser.
    Status responds() const;

    /// The document as it is known without asking the browser: as of the last followed(),
    /// documentHTML() or setDocumentHTML(). It may be older than the document, so it is only for
    /// emergency copies.
    QString knownHTML() const;

    /// Replaces what is selected by the fragment and puts the caret after it; undone as one step. False when
    /// the view has no selection, in Browse mode, or when nothing was inserted.
    Result<bool> insertHTML(const QString& fragment);

    // --- Commands

    /// Runs a command at the selection. The get commands return a QString: the font's name ("Verdana"), its
    /// size ("1" to "7"), its colour ("#rrggbb"), each empty where the selection is mixed. All others return
    /// whether they were done. SetFontName takes a name, SetFontSize "1" to "7", SetForeColor "#rrggbb"; with
    /// nothing selected they apply to the text typed next. One undo step each.
    Result<QVariant> execCommand(int command, const QString& value = QString());

    /// State at the present selection, without asking the browser: as of the last displayChanged().
    CommandStatus queryStatus(int command) const;
    /// What GetFontName and GetFontSize return, likewise.
    QString queryFontName() const;
    QString queryFontSize() const;
    /// True where queryStatus() is Latched, and where it is Enabled or Latched.
    bool commandState(int command) const { return queryStatus(command) == Latched; }
    bool commandEnabled(int command) const { return queryStatus(command) >= Enabled; }

    /// The selected text, as plain text; empty for a mere caret.
    Result<QString> selectedText() const;

    /// Selects the next occurrence from the selection on, wrapping around at the end of the document. False
    /// when there is none.
    Result<bool> find(const QString& text, unsigned flags = 0);

    // --- For the dialogs

    /// The selected image (it was clicked), for the image dialog; none for anything else.
    Result<std::optional<ImageInfo>> selectedImage() const;
    /// Inserts the image, or changes the selected one (its other attributes stay). A source that is an
    /// absolute path becomes a file address. One undo step.
    Result<bool> insertImage(const ImageInfo& image);

    /// The link that contains the selection.
    Result<LinkInfo> link() const;
    /// Makes the selection a link, or changes the link around it; an empty address removes the link.
    /// With nothing selected and no link around, inserts `text` (the address where that is empty) as a link.
    /// One undo step. A link that becomes one to unsubscribe gets rel="unsubscribe one-click" (RFC
    /// 8058), one that no longer is loses both words; other words of rel stay.
    Result<bool> setLink(const LinkInfo& link, const QString& text = QString());

    /// The elements that contain the selection, innermost first (a selected image or form field is the
    /// first), up to and with the body.
    Result<QList<Element>> elementsAtCaret() const;
    /// Gives the element at `level` of elementsAtCaret() exactly these attributes. One undo step. False when
    /// there is no such element or a name cannot be one.
    Result<bool> setElementAttributes(int level, const Attributes& attributes);

    // --- The page. These are no undo steps.

    /// An attribute of the body as written; empty where it is not set. Names without regard to case.
    Result<QString> bodyAttribute(const QString& name) const;
    Status setBodyAttribute(const QString& name, const QString& value);
    Status removeBodyAttribute(const QString& name);

    /// A colour of the page as written in the body. Where it is not set: "#ffffff" for the background,
    /// "#000000" for text, "#0000ff" for links and active links, "#800080" for visited ones.
    Result<QString> pageColor(PageColor color) const;
    Status setPageColor(PageColor color, const QString& value);

    // --- Appearance. None touches the document; all survive setDocumentHTML().

    /// How the view runs what takes long with a large document and needs no widget, such as in a thread of
    /// its own; it returns after the work. By default in the caller's thread.
    void setLongWork(std::function<void(const std::function<void()>& work)> run);

    /// Shows text that names no font, or none that is there, in this font or in the one without serifs that
    /// replaces it; GetFontName returns the family for such text. A font that a command sets is written
    /// even where the text is shown in it already. To be called before the view is shown.
    void setDefaultFont(const QString& family);

    /// Marks of the elements that cannot be seen (paragraphs, line breaks, blocks, forms).
    void setShowDetails(bool on);
    /// Dotted outlines around tables and cells that have no border of their own.
    void setShowBorders(bool on);

    // --- Printing

    /// Prints the document, as text and vectors, to the printer or the PDF file that the user chose. With
    /// `prompt` the user is asked first; false when the user declined. `title` names the printed document
    /// where it has no title of its own.
    Result<bool> print(bool prompt, const QString& title = QString());
    /// The question that print(true) asks: may change the printer; false cancels. The default is the
    /// desktop's print dialog.
    void setPrintPrompt(std::function<bool(QPrinter&)> prompt);

    // --- For windows and tests

    /// The widget inside that has the focus, keys and mouse of the document, null before the browser was
    /// loaded. Tests send their events to it. (setFocus() on the view works at any time.)
    QWidget* inputWidget() const;
    /// True once the browser is there and has the document.
    bool isLive() const;
    /// Loads the browser now if it is not there, without showing anything.
    void wake();
    /// Runs a script of the program's own over the document (tests): the value of its last expression.
    QVariant evaluate(const QString& script) const;

  Q_SIGNALS:
    /// A document that was set is there; commands work on it.
    void documentComplete();
    /// The selection, the document or the state of a command changed: read the states again. At most once for
    /// each turn of the event loop.
    void displayChanged();
    /// knownHTML() contains the changes of the document made so far, from any source: soon after
    /// each change, later for a large document, and at the latest during the next documentHTML().
    void followed();
    /// A key was released over the document. The keys of a stroke that was a shortcut of the window (Ctrl+S)
    /// do not count.
    void keyReleased();
    /// The focus went from the document to another control of the same window.
    void validated();
    /// The right button was pressed, or the menu key pressed; a place on the screen.
    void contextMenuRequested(const QPoint& globalPosition);
    /// A double click over the document; the element under the pointer is at the head of elementsAtCaret().
    void doubleClicked();
    /// Something was dropped on the document and inserted.
    void dropped();
    /// Text that was pasted or dropped named files of this machine, which were not in the document already;
    /// it was inserted without them. Their addresses, at most 100. Files that were themselves pasted or
    /// dropped are none of these.
    void leftOut(const QStringList& addresses);
    /// Text that was pasted or dropped shows web resources, which are loaded wherever the message is read:
    /// pictures, backgrounds, and what a link notifies of a click. Their addresses, at most 100.
    void staysOnTheWeb(const QStringList& addresses);
    /// What was pasted or dropped is too large or too deep, and was not inserted; a text for the user.
    void refused(const QString& reason);
    /// Image files were pasted or dropped and are in the document now. Their addresses.
    void filesInserted(const QStringList& addresses);
    /// The pointer came over the view.
    void pointerEntered();

  protected:
    void showEvent(QShowEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Live;
    std::unique_ptr<Live> m_live;
};
