// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <QString>

#include "platform/Status.h"

class QDockWidget;
class QMainWindow;
class QWidget;

namespace ui {

/// One docked pane.
class DockPane {
  public:
    QString Caption() const;
    void setCaption(const QString& caption);
    QWidget* content() const;
    /// The pane owns its content.
    void setContent(QWidget* content);

  private:
    friend class DockPanes;
    explicit DockPane(QDockWidget* dock) : m_dock(dock) {}
    QDockWidget* m_dock;
};

/// The docked panes of a main window, and the file that remembers how its bars and panes were arranged. The
/// free client area belongs to the window's central widget.
class DockPanes {
  public:
    explicit DockPanes(QMainWindow* window) : m_window(window) {}

    /// `extent` is the width of a pane at the left or right, the height of one at the top or bottom, in
    /// pixels.
    void addPane(const QString& name, const QString& caption, Qt::DockWidgetArea area, int extent);
    /// Null for a name that was not added.
    DockPane* DockWindows(const QString& name);

    /// Position, visibility and docking state of bars and panes. A file that is missing, damaged or made for
    /// other bars and panes is reported by the Status, and leaves the arrangement as it is.
    Status saveLayout(const QString& path) const;
    Status loadLayout(const QString& path);

  private:
    QMainWindow* m_window;
    std::map<QString, DockPane> m_panes;
};

}  // namespace ui
