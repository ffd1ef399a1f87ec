// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QByteArray>
#include <QString>
#include <QVariant>

class QMimeData;
class QPoint;
class QPageLayout;
class QPageRanges;
class QPrinter;
class QWidget;

/// The functions of the browser plug-in for HtmlView. The plug-in alone is linked to the browser; it is
/// loaded when the first view needs it and stays for the life of the program.
struct Browser {
    /// The widget that shows the document, a child of the parent that createBrowser() was given. Deleting it
    /// ends the browser; then none of the functions may be called.
    QWidget* widget = nullptr;
    /// Loads an empty document, with the editing scripts in an isolated world beside it; `started` says when
    /// it is there.
    std::function<void()> start;
    /// Runs a script in that world and passes on the value of its last expression; `done` is not called when
    /// the browser's process dies meanwhile.
    std::function<void(const QString& script, std::function<void(const QVariant&)> done)> run;
    /// The document as a PDF; empty where that fails.
    std::function<void(const QPageLayout&, const QPageRanges&, std::function<void(const QByteArray&)> done)>
        pdf;
    /// The document as pictures of its pages.
    std::function<void(QPrinter&, std::function<void(bool)> done)> print;
    /// Font of text that names none, or none that is there. Applies to documents that are loaded later.
    std::function<void(const QString& family)> setStandardFont;
    /// The process that has the document; 0 where there is none.
    std::function<qint64()> process;
};

/// The plug-in's notifications. Always from the event loop, never during a call.
struct BrowserEvents {
    std::function<void()> started;
    std::function<void()> died;  ///< the browser's process is gone; start() starts a new one
    std::function<void(const QString& json)> said;           ///< by the editing scripts: {what, detail}
    std::function<void(const QPoint& globalPosition)> menu;  ///< a context menu was asked for
    /// Something is dragged over, or dropped at a place of the widget. True accepts it.
    std::function<bool(const QMimeData&)> dragged;
    std::function<bool(const QPoint& place, const QMimeData&)> dropped;
};

/// The plug-in's one symbol, "createBrowser": fills in `browser`.
using CreateBrowser = void(QWidget* parent, const BrowserEvents& events, Browser& browser);
