#pragma once

#include <algorithm>
#include <ctime>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QWidget>
#include <vector>

/// Typing as both programs do it, and what it costs the program's thread.
namespace typing {

constexpr int keys = 100;
constexpr int ignored = 5;  // the slowest ones, which others on the machine delayed

inline double threadMilliseconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

inline void turnFor(int milliseconds) {
    QElapsedTimer elapsed;
    elapsed.start();
    while (elapsed.elapsed() < milliseconds)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
}

inline double slowest(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() - 1 - ignored];
}

inline double middle(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

inline QString newsletter() {
    QString html = QStringLiteral("<html><body><table width=600>");
    for (int i = 0; html.size() < 100'000; ++i) {
        html +=
            QStringLiteral(
                "<tr><td><img src=articolo%1.jpg width=80 height=60></td><td><font face=Verdana size=2><b>"
                "Articolo %1</b><br>Prezzo :::campo1::: per :::rgs:::</font></td></tr>\n")
                .arg(i);
    }
    return html + QStringLiteral("</table></body></html>");
}

/// Types letters one at a time, each with time for all that follows it. Returns the milliseconds of the
/// thread for each key; `released` is called ahead of each release.
template <class Released>
std::vector<double> type(QWidget& input, Released released) {
    std::vector<double> works;
    for (int key = 0; key < keys; ++key) {
        const double start = threadMilliseconds();
        QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
        QApplication::sendEvent(&input, &press);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
        released();
        QApplication::sendEvent(&input, &release);
        turnFor(60);
        works.push_back(threadMilliseconds() - start);
    }
    return works;
}

}  // namespace typing
