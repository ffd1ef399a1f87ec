// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/ElementDialog.h"

#include <QComboBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>

#include "platform/text/Words.h"
#include "platform/ui/Controls.h"
#include "platform/ui/DialogForm.h"

namespace ui {

namespace {

constexpr int nameWidth = 150;

QStringList tagsOf(const QList<HtmlView::Element>& elements) {
    QStringList tags;
    for (const HtmlView::Element& element : elements)
        tags << '<' + element.tag + '>';
    return tags;
}

}  // namespace

ElementDialog::ElementDialog(QWidget* parent, QList<HtmlView::Element> elements)
    : QDialog(parent),
      m_before(elements),
      m_elements(std::move(elements)),
      m_which(choiceField("cmbElement", tagsOf(m_before), this)),
      m_list(named(new QTableWidget(0, 2, this), "lstAttributes")) {
    setObjectName("elementDialog");
    setWindowTitle(Words::tr("Proprietà elemento"));
    m_list->setHorizontalHeaderLabels({Words::tr("Attributo"), Words::tr("Valore")});
    m_list->setAccessibleName(Words::tr("Attributi"));
    m_list->verticalHeader()->hide();
    m_list->verticalHeader()->setDefaultSectionSize(rowHeight);
    m_list->horizontalHeader()->setStretchLastSection(true);
    m_list->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_list->horizontalHeader()->resizeSection(0, nameWidth);
    m_list->horizontalHeader()->setHighlightSections(false);
    m_list->setEditTriggers(QAbstractItemView::AllEditTriggers);

    DialogForm form(this);
    form.addField(Words::tr("&Elemento:"), m_which);
    form.addBlock(m_list);
    QPushButton* ok = form.addButton(Words::tr("&OK"), "cmdOk");
    QPushButton* cancel = form.addButton(Words::tr("&Annulla"), "cmdCancel");
    form.finish(ok, 460);
    resize(width(), 360);
    connect(m_which, &QComboBox::currentIndexChanged, this, [this](int level) {
        take();
        fill(level);
    });
    // There is always one empty row at the end.
    connect(m_list, &QTableWidget::itemChanged, this, [this](const QTableWidgetItem* item) {
        if (item->row() == m_list->rowCount() - 1 && !item->text().isEmpty())
            m_list->setRowCount(m_list->rowCount() + 1);
    });
    connect(ok, &QPushButton::clicked, this, [this] {
        take();
        accept();
    });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    fill(0);
}

void ElementDialog::fill(int level) {
    m_level = level;
    const HtmlView::Attributes& attributes = m_elements[level].attributes;
    m_list->setRowCount(0);
    m_list->setRowCount(static_cast<int>(attributes.size()) + 1);
    for (int row = 0; row < attributes.size(); ++row) {
        m_list->setItem(row, 0, new QTableWidgetItem(attributes[row].first));
        m_list->setItem(row, 1, new QTableWidgetItem(attributes[row].second));
    }
}

/// Takes the rows over as the attributes of the element on show.
void ElementDialog::take() {
    // What is being typed counts.
    m_list->setCurrentCell(-1, -1);
    HtmlView::Attributes attributes;
    const auto textOf = [this](int row, int column) {
        const QTableWidgetItem* item = m_list->item(row, column);
        return item ? item->text() : QString();
    };
    for (int row = 0; row < m_list->rowCount(); ++row)
        if (const QString name = textOf(row, 0).trimmed(); !name.isEmpty())
            attributes.append({name, textOf(row, 1)});
    m_elements[m_level].attributes = attributes;
}

std::map<int, HtmlView::Attributes> ElementDialog::changes() const {
    std::map<int, HtmlView::Attributes> changes;
    for (int level = 0; level < m_elements.size(); ++level)
        if (m_elements[level].attributes != m_before[level].attributes)
            changes[level] = m_elements[level].attributes;
    return changes;
}

}  // namespace ui
