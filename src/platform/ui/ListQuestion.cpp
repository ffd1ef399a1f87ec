// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/ListQuestion.h"

#include <algorithm>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "platform/ui/Controls.h"

namespace ui {

ListQuestion::ListQuestion(QWidget* parent, const Content& content) : QDialog(parent) {
    setObjectName("listQuestion");
    setWindowTitle(content.title);
    auto* text = new QLabel(QString(content.text).replace("\r\n", "\n"), this);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    setAccessibleDescription(text->text());

    auto* list = named(new QTreeWidget(this), "list");
    list->setAccessibleName(content.title);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setAllColumnsShowFocus(true);
    list->setTextElideMode(Qt::ElideMiddle);
    list->setHeaderLabels(content.heads);
    for (const QStringList& row : content.rows) {
        auto* item = new QTreeWidgetItem(list, row);
        for (int column = 0; column < row.size(); ++column)
            item->setToolTip(column, row[column].toHtmlEscaped());
    }
    for (int column = 0; column < content.heads.size(); ++column)
        list->resizeColumnToContents(column);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Yes | QDialogButtonBox::No, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    QPushButton* no = buttons->button(QDialogButtonBox::No);
    no->setDefault(true);

    auto* area = new QVBoxLayout(this);
    area->setContentsMargins(windowMargin, windowMargin, windowMargin, windowMargin);
    area->setSpacing(windowMargin);
    area->addWidget(text);
    area->addWidget(list, 1);
    if (!content.remember.isEmpty()) {
        m_remember = named(new QCheckBox(content.remember, this), "chkRemember");
        area->addWidget(m_remember);
    }
    area->addWidget(buttons);
    no->setFocus();
    // Wide enough for whole paths, as far as the screen goes.
    const int frame = list->frameWidth() * 2 + windowMargin * 2;
    const int widest = screen()->availableGeometry().width() * 9 / 10;
    resize(std::max(640, std::min(list->header()->length() + frame, widest)), 340);
}

bool ListQuestion::remembers() const {
    return m_remember && m_remember->isChecked();
}

}  // namespace ui
