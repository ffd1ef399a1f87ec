// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/PropertyList.h"

#include <QLabel>
#include <QVBoxLayout>

#include "platform/ui/PropertyListView.h"

namespace ui {

QString PropertyItem::Caption() const {
    return m_row->caption();
}

void PropertyItem::setCaption(const QString& caption) {
    m_row->setCaption(caption);
}

QVariant PropertyItem::Value() const {
    return m_row->value();
}

void PropertyItem::setValue(const QVariant& value) {
    m_row->setValue(value);
}

PropertyList::PropertyList(QWidget* parent)
    : QWidget(parent), m_view(new PropertyListView(this)), m_description(new QLabel(this)) {
    m_view->setObjectName("items");
    m_description->setTextFormat(Qt::PlainText);
    m_description->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    m_description->setMargin(3);
    m_description->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addWidget(m_view);
    column->addWidget(m_description);
    setFocusProxy(m_view);
    connect(m_view, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* current) {
        m_description->setText(current ? static_cast<PropertyListRow*>(current)->description() : QString());
    });
}

void PropertyList::addGroup(const QString& key, const QString& caption) {
    add(key, new PropertyListRow(PropertyListRow::Kind::Group, caption, {}));
}

void PropertyList::addText(const QString& key, const QString& caption, const QString& description) {
    add(key, new PropertyListRow(PropertyListRow::Kind::Text, caption, description));
}

void PropertyList::addBoolean(const QString& key, const QString& caption, const QString& description) {
    add(key, new PropertyListRow(PropertyListRow::Kind::Boolean, caption, description));
}

void PropertyList::addColour(const QString& key, const QString& caption, const QString& description) {
    add(key, new PropertyListRow(PropertyListRow::Kind::Colour, caption, description));
}

void PropertyList::add(const QString& key, PropertyListRow* row) {
    m_view->addTopLevelItem(row);
    m_items.emplace(key.toLower(), PropertyItem(row));
}

PropertyItem* PropertyList::Item(const QString& key) {
    const auto found = m_items.find(key.toLower());
    return found == m_items.end() ? nullptr : &found->second;
}

void PropertyList::setCurrentItem(const QString& key) {
    if (const PropertyItem* item = Item(key)) m_view->setCurrentItem(item->m_row, 1);
}

}  // namespace ui
