// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

#include "modules/store/NuovoDatabase.h"
#include "platform/ado/Command.h"
#include "platform/ado/Connection.h"
#include "platform/jet/Database.h"

/// A fresh recipient list, with what a test puts into it.
class TestList {
  public:
    TestList() {
        const Status status = schema::CreaDatabase(path().toStdString());
        if (!status.ok()) qFatal("%s", qUtf8Printable(status.text()));
    }
    ~TestList() { ado::closeAll(); }

    QString path() const { return m_folder.filePath("lista.mdb"); }
    QString connection() const { return "Provider = Microsoft.Jet.OLEDB.4.0; Data Source = " + path(); }

    void run(const QString& statement) const {
        ado::Command command;
        Status status = command.setActiveConnection(connection());
        command.setCommandText(statement);
        if (status.ok()) status = command.execute().status();
        if (!status.ok()) qFatal("%s: %s", qUtf8Printable(statement), qUtf8Printable(status.text()));
    }
    void add(int group, const QString& company, const QString& email, bool chosen) const {
        run(QString("INSERT INTO [tb_destinatari] (id_grp, sel, email, rgs) VALUES (%1, %2, '%3', '%4')")
                .arg(group)
                .arg(chosen ? "True" : "False", email, company));
    }
    static QString source(int group) {
        return QString("SELECT * FROM tb_destinatari WHERE id_grp = %1 ORDER BY rgs ASC;").arg(group);
    }

  private:
    QTemporaryDir m_folder;
};

/// The mouse as the window system reports it, so that drags work; positions are those of the view's viewport.
namespace mouse {

inline QPoint inWindow(const QAbstractScrollArea* view, const QPoint& position) {
    return view->viewport()->mapTo(view->window(), position);
}
inline void press(QAbstractScrollArea* view, const QPoint& position,
                  Qt::MouseButton button = Qt::LeftButton) {
    QTest::mousePress(view->window()->windowHandle(), button, {}, inWindow(view, position));
}
inline void move(QAbstractScrollArea* view, const QPoint& position) {
    QTest::mouseMove(view->window()->windowHandle(), inWindow(view, position));
}
inline void release(QAbstractScrollArea* view, const QPoint& position,
                    Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseRelease(view->window()->windowHandle(), button, {}, inWindow(view, position));
}
inline void click(QAbstractScrollArea* view, const QPoint& position,
                  Qt::MouseButton button = Qt::LeftButton) {
    press(view, position, button);
    release(view, position, button);
}
/// Counts the drags that a view starts: each is a child of it for as long as it lasts.
class DragCounter : public QObject {
  public:
    explicit DragCounter(QAbstractScrollArea* view) { view->installEventFilter(this); }
    int drags = 0;

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        // The style's animations are children as well.
        drags += event->type() == QEvent::ChildAdded &&
                 !static_cast<QChildEvent*>(event)->child()->inherits("QAbstractAnimation");
        return false;
    }
};

/// A press and two moves: the first makes the view ready to drag, the second starts the drag. The offscreen
/// platform has no drag loop, so the drag is over when this returns.
inline int startDrag(QAbstractScrollArea* view, const QPoint& start) {
    const DragCounter counter(view);
    const QPoint way(QApplication::startDragDistance() + 1, 0);
    press(view, start);
    move(view, start + way);
    move(view, start + 2 * way);
    return counter.drags;
}
/// Drags `content` over a view without dropping it; whether the view accepts it.
inline bool dragOver(QAbstractScrollArea* view, const QPoint& position, QMimeData* content) {
    QDragEnterEvent enter(position, Qt::MoveAction, content, Qt::LeftButton, {});
    QCoreApplication::sendEvent(view->viewport(), &enter);
    if (!enter.isAccepted()) return false;
    QDragMoveEvent over(position, Qt::MoveAction, content, Qt::LeftButton, {});
    QCoreApplication::sendEvent(view->viewport(), &over);
    return over.isAccepted();
}
/// What the window system does when `content` is dragged over a view and dropped there.
inline bool drop(QAbstractScrollArea* view, const QPoint& position, QMimeData* content) {
    const std::unique_ptr<QMimeData> owned(content);
    if (!dragOver(view, position, content)) return false;
    QDropEvent dropped(position, Qt::MoveAction, content, Qt::LeftButton, {});
    QCoreApplication::sendEvent(view->viewport(), &dropped);
    return dropped.isAccepted();
}

}  // namespace mouse
