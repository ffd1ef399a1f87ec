// SPDX-License-Identifier: GPL-3.0-or-later
// Each of these is a process of its own that prints one line of JSON.
//
// find_rows --one-folder DATABASE    puts all recipients into group 1
// find_rows --scan DATABASE          one scan of all recipients by the engine, every text as UTF-8
// find_rows --everywhere DATABASE    a full miss in all folders, in slices
// find_rows --grid DATABASE          all recipients in the grid: a full miss, a key during a search,
//                                    a sort
//
// All in milliseconds of the thread's processor time: "ms" is the whole, "longest" that of the longest turn
// of the event loop, "answer" the time from a key struck in the middle of the work to the field that shows it
// painted.
#include <time.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QVBoxLayout>

#include "modules/store/CercaOvunque.h"
#include "platform/ado/Command.h"
#include "platform/ado/TableWalk.h"
#include "platform/jet/Database.h"
#include "platform/ui/DataControl.h"
#include "platform/ui/DataGrid.h"

namespace {

/// The processor time of this thread: what other programs on the machine do meanwhile does not count.
struct Clock {
    using duration = std::chrono::nanoseconds;
    using rep = duration::rep;
    using period = duration::period;
    using time_point = std::chrono::time_point<Clock>;
    static time_point now() {
        timespec now{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        return time_point(std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec));
    }
};

const QString missing = QStringLiteral("questo non c'è");

[[noreturn]] void give_up(const QString& why) {
    std::fprintf(stderr, "find_rows: %s\n", qPrintable(why));
    std::exit(1);
}

void demand(const Status& status) {
    if (!status.ok()) give_up(status.text());
}

double since(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

QString connectionTo(const QString& path) {
    return QStringLiteral("Provider = Microsoft.Jet.OLEDB.4.0; Data Source = ") + path;
}

void oneFolder(const QString& path) {
    ado::Command command;
    demand(command.setActiveConnection(connectionTo(path)));
    command.setCommandTimeout(0);
    command.setCommandText(QStringLiteral("UPDATE tb_destinatari SET id_grp = 1"));
    demand(command.execute().status());
}

void scan(const QString& path) {
    const auto start = Clock::now();
    const auto database = jet::Database::open(path.toStdString(), {.readOnly = true});
    demand(database.status());
    const auto table = database.value()->table("tb_destinatari");
    demand(table.status());
    const auto& columns = table.value()->definition().columns;
    size_t bytes = 0;
    long long rows = 0;
    std::string text;
    demand(table.value()->scan([&](jet::RowId, const jet::RowView& row) {
        text.clear();
        for (size_t i = 0; i < columns.size(); ++i)
            if (columns[i].type == jet::Type::Text) static_cast<void>(row.text(i, text));
        bytes += text.size();
        ++rows;
        return true;
    }));
    std::printf("{\"ms\": %.2f, \"rows\": %lld, \"bytes\": %zu}\n", since(start), rows, bytes);
}

/// Runs the event loop until `done`; the longest turn in milliseconds.
template <class Done>
double turnsUntil(Done done) {
    double longest = 0;
    while (!done()) {
        const auto start = Clock::now();
        QCoreApplication::processEvents();
        longest = std::max(longest, since(start));
    }
    return longest;
}

void everywhere(const QString& path) {
    const auto start = Clock::now();
    CercaOvunque search(connectionTo(path), missing, false);
    double longest = 0;
    for (bool done = false; !done;) {
        const auto slice = Clock::now();
        const auto part = search.Avanza(std::chrono::milliseconds(ui::SlicedWork::milliseconds));
        demand(part.status());
        done = part.value();
        longest = std::max(longest, since(slice));
    }
    if (search.Trovati() != 0) give_up(QStringLiteral("found what is not there"));
    std::printf("{\"ms\": %.2f, \"longest\": %.2f}\n", since(start), longest);
}

/// The field as in the bar that finds recipients.
double answerTo(QLineEdit& field, QChar letter) {
    const auto struck = Clock::now();
    QCoreApplication::postEvent(
        &field, new QKeyEvent(QEvent::KeyPress, letter.toUpper().unicode(), Qt::NoModifier, letter));
    const qsizetype before = field.text().size();
    while (field.text().size() == before)
        QCoreApplication::processEvents();
    field.repaint();
    return since(struck);
}

void grid(const QString& path) {
    QWidget window;
    auto* column = new QVBoxLayout(&window);
    auto* field = new QLineEdit;
    auto* view = new ui::DataGrid;
    column->addWidget(field);
    column->addWidget(view);
    ui::DataControl source;
    view->setDataSource(&source);
    source.setConnectionString(connectionTo(path));
    source.setRecordSource(QStringLiteral("SELECT * FROM tb_destinatari WHERE id_grp = 1 ORDER BY rgs ASC;"));
    window.resize(1000, 600);
    window.show();
    demand(source.Refresh());
    view->setColWidth(1, 0);
    view->setColWidth(2, 0);
    QCoreApplication::processEvents();

    QObject::connect(field, &QLineEdit::textChanged, view,
                     [&](const QString& text) { view->search().start(text, false); });
    auto start = Clock::now();
    view->search().start(missing, false);
    const double searching = turnsUntil([&] { return !view->search().underWay(); });
    const double search = since(start);
    if (!view->search().rows().empty()) give_up(QStringLiteral("found what is not there"));

    double answer = 0;
    for (const QChar letter : QStringLiteral("azienda 9")) {
        answer = std::max(answer, answerTo(*field, letter));
        for (int turn = 0; turn < 3; ++turn)
            QCoreApplication::processEvents();
    }
    view->search().stop();

    start = Clock::now();
    view->sortBy(5);
    const double sorting = turnsUntil([&] { return !view->isSorting(); });
    const double sort = since(start);
    start = Clock::now();
    view->sortBy(5);
    const double again = turnsUntil([&] { return !view->isSorting(); });
    start = Clock::now();
    view->sortBy(5);
    QCoreApplication::processEvents();
    const double told = since(start);
    std::printf(
        "{\"rows\": %d, \"search\": %.2f, \"searchLongest\": %.2f, \"answer\": %.2f, \"sort\": %.2f, "
        "\"sortLongest\": %.2f, \"told\": %.2f}\n",
        view->Rows() - 1, search, searching, answer, sort, std::max(sorting, again), told);
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const QString what = arguments.value(1);
    const QString path = arguments.value(2);
    if (argc != 3) give_up(QStringLiteral("--one-folder | --scan | --everywhere | --grid DATABASE"));
    if (what == QStringLiteral("--one-folder")) oneFolder(path);
    if (what == QStringLiteral("--scan")) scan(path);
    if (what == QStringLiteral("--everywhere")) everywhere(path);
    if (what == QStringLiteral("--grid")) grid(path);
    return 0;
}
