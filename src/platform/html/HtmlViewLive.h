// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QJsonArray>
#include <QLabel>
#include <QMap>
#include <QPointer>
#include <QTimer>
#include <QVariantMap>
#include <vector>

#include "platform/html/browser/Browser.h"
#include "platform/html/HtmlView.h"

/// The part of a view that talks with its browser. Until the browser has the document, `m_source` is
/// authoritative; then the document in the browser's process is, and `m_text` follows it.
struct HtmlView::Live {
    Live(HtmlView& owner, Mode viewMode);
    ~Live();
    Live(const Live&) = delete;
    Live& operator=(const Live&) = delete;

    /// Starts the browser, without waiting.
    void begin();
    /// Starts the browser and waits for it; false where that fails.
    bool ensure();
    Status setSource(const QString& html);
    Result<QString> text();
    /// The text without asking the browser.
    QString knownText();
    Status responds();

    /// How long a question waits while an earlier one is unanswered.
    enum class Wait { Brief, Long };
    /// The value of a script, or why there is none: no answer in time, or no browser.
    Result<QVariant> ask(const QString& script, Wait wait = Wait::Brief);
    /// Runs editor.<function>(values...) as one undo step and takes over the states as they are after it.
    Result<QVariant> change(const QString& function, const QJsonArray& values = {});
    Result<bool> changeDone(const QString& function, const QJsonArray& values = {});
    Result<QString> askText(const QString& script);
    Status tell(const QString& script);
    /// Values as they are written between the brackets of a call in a script.
    static QString arguments(const QJsonArray& values);
    Result<bool> paste();
    Result<bool> paste(const QJsonObject& content);
    void awaitStrokes();

    Result<QString> freshState(const QString& name);
    Result<QString> fontName();
    QString shownFontName() const;
    CommandStatus status(int command) const;
    void setDefaultFont(const QString& family);
    void showMarks(const QString& name, bool on);
    Result<bool> print(bool prompt, const QString& title);

    bool filter(QEvent& event);

    HtmlView& view;
    const Mode mode;
    bool live = false;
    QVariantMap state;
    QMap<QString, bool> marks{{"borders", false}, {"details", false}};
    std::function<bool(QPrinter&)> printPrompt;
    std::function<void(const std::function<void()>&)> longWork = [](const auto& work) { work(); };
    Browser browser;

  private:
    Result<QByteArray> pages(const QPrinter& printer);
    static Status writePdf(const QString& path, const QByteArray& document);
    Result<bool> printPictures(QPrinter& printer);
    void fail(const QString& reason);
    void write();
    void written();
    void takeInput();
    void heard(const QString& json);
    void died();
    void keepText();
    void tryAgain();
    void end();
    void read();
    bool haveRead();
    void forgetRead();
    void follow();
    void takeText(const QVariant& answer);
    void takeState(const QVariantMap& newer);
    void tellFollowed();
    void refreshState();
    void wakeWaiting();
    static Status noAnswer();
    int patience(Wait wait) const;
    bool waitFor(const std::function<bool()>& done, int milliseconds);
    bool dropped(const QPoint& place, const QMimeData& data);
    void tellFiles(const QJsonObject& content);
    bool focusArrives(Qt::FocusReason reason);

    const QString m_missingMark;  // in front of addresses of images that are not there
    QString m_defaultFont;        // as set
    QString m_standardFont;       // as the browser knows it
    QString m_source;
    QString m_text;        // null: as m_source gives it
    QString m_serialised;  // the document of m_version as its page writes it
    int m_version = -1;
    int m_toldVersion = -1;  // of the last followed(), or of the document as it was loaded
    bool m_writing = false;
    int m_lastWrite = 0;  // only the answer to this one counts
    bool m_failed = false;
    QString m_failure;
    bool m_stalled = false;  // a question got no answer, and none came since
    bool m_stateDue = false;
    bool m_reading = false;    // the answer to read() is on its way
    bool m_followDue = false;  // once it arrived

    bool m_strokeIsShortcut = false;
    int m_strokes = 0;      // keys released over the input widget
    int m_strokesSeen = 0;  // of them by the document
    int m_deaths = 0;
    QElapsedTimer m_lastDeath;
    QPointer<QWidget> m_input;
    QPointer<QLabel> m_notice;  // shown instead of a browser that cannot be loaded
    QTimer m_followTimer;
    std::vector<QEventLoop*> m_waiting;
};
