// SPDX-License-Identifier: GPL-3.0-or-later
// The smallest program of this toolkit: an empty main window of the size of ours.
#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1080, 640);
    window.show();
    return QApplication::exec();
}
