// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/PropertyListView.h"

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>

#include "platform/ui/BodyLine.h"
#include "platform/ui/ColorNumber.h"
#include "platform/ui/ColorPopup.h"
#include "platform/ui/Controls.h"
#include "platform/ui/ItemViewAccess.h"
#include "platform/ui/LineEdit.h"

namespace ui {

namespace {

constexpr int captionWidth = 170;
constexpr int textMargin = 6;
constexpr QSize swatch(24, 14);
constexpr int arrowWidth = 24;

/// The two ends of a colour's cell: what it looks like, and the arrow that offers others.
QRect swatchOf(const QRect& cell) {
    return {cell.left() + textMargin, cell.center().y() - swatch.height() / 2, swatch.width(),
            swatch.height()};
}

QRect arrowOf(const QRect& cell) {
    return {cell.right() + 1 - arrowWidth, cell.top(), arrowWidth, cell.height()};
}

}  // namespace

PropertyListRow::PropertyListRow(Kind kind, const QString& caption, const QString& description)
    : QTreeWidgetItem(UserType), m_kind(kind), m_caption(caption), m_description(description) {
    Qt::ItemFlags flags = Qt::NoItemFlags;
    if (kind != Kind::Group) flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (kind == Kind::Boolean) flags |= Qt::ItemIsUserCheckable;
    if (kind == Kind::Text || kind == Kind::Colour) flags |= Qt::ItemIsEditable;
    setFlags(flags);
    setValue(QVariant());
}

QString PropertyListRow::text() const {
    switch (m_kind) {
        case Kind::Text:
            return m_value.toString();
        case Kind::Colour:
            return colorOf(m_value.toUInt()).name();
        default:
            return {};
    }
}

QVariant PropertyListRow::data(int column, int role) const {
    switch (role) {
        case Qt::DisplayRole:
            return column == 0 ? m_caption : text();
        case Qt::EditRole:
            return text();
        case Qt::CheckStateRole:
            if (m_kind != Kind::Boolean || column != 1) return {};
            return m_value.toBool() ? Qt::Checked : Qt::Unchecked;
        case Qt::AccessibleTextRole:
            return m_caption;
        case Qt::AccessibleDescriptionRole:
            return text();
        default:
            return {};
    }
}

void PropertyListRow::setData(int column, int role, const QVariant& value) {
    if (column != 1) return;
    if (role == Qt::CheckStateRole) setValue(value.toInt() == Qt::Checked);
    if (role != Qt::EditRole) return;
    if (m_kind == Kind::Text) setValue(value);
    if (m_kind != Kind::Colour) return;
    const QString typed = value.toString().trimmed();
    const QColor colour(typed);
    if (typed.size() != 7 || !typed.startsWith('#') || !colour.isValid()) return;
    setValue(numberOf(colour));
}

void PropertyListRow::setCaption(const QString& caption) {
    m_caption = caption;
    emitDataChanged();
}

void PropertyListRow::setValue(const QVariant& value) {
    switch (m_kind) {
        case Kind::Boolean:
            m_value = value.toBool();
            break;
        case Kind::Colour:
            m_value = value.toUInt();
            break;
        default:
            m_value = value.toString();
    }
    emitDataChanged();
}

const PropertyListRow& PropertyListDelegate::rowOf(const QModelIndex& index) const {
    return *static_cast<PropertyListView*>(parent())->row(index);
}

void PropertyListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    // The whole line shows the selection; a rim around its second half would only distract.
    cell.state &= ~QStyle::State_HasFocus;
    cell.showDecorationSelected = true;
    const PropertyListRow& row = rowOf(index);
    if (row.kind() != PropertyListRow::Kind::Colour || index.column() == 0) {
        QStyledItemDelegate::paint(painter, cell, index);
        return;
    }
    painter->save();
    painter->setPen(option.palette.color(QPalette::Shadow));
    painter->setBrush(colorOf(row.value().toUInt()));
    const QRect box = swatchOf(option.rect);
    painter->drawRect(box.adjusted(0, 0, -1, -1));
    painter->restore();
    const QRect arrow = arrowOf(option.rect);
    cell.rect.setLeft(box.right() + 1);
    QStyledItemDelegate::paint(painter, cell, index);
    QStyleOption mark = option;
    mark.rect = arrow.adjusted(8, 0, -8, 0);
    if ((option.state & QStyle::State_Selected) && (option.state & QStyle::State_Active))
        mark.palette.setColor(QPalette::ButtonText, option.palette.color(QPalette::HighlightedText));
    option.widget->style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &mark, painter, option.widget);
}

QSize PropertyListDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QSize hint = QStyledItemDelegate::sizeHint(option, index);
    return {hint.width(), qMax(rowHeight, option.fontMetrics.height() + 6)};
}

QWidget* PropertyListDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                            const QModelIndex& index) const {
    if (rowOf(index).kind() == PropertyListRow::Kind::Boolean || index.column() != 1) return nullptr;
    auto* editor = new LineEdit(parent);
    editor->setFrame(false);
    editor->setAccessibleName(rowOf(index).caption());
    editor->setTextMargins(textMargin - 2, 0, 0, 0);
    editor->setAutoFillBackground(true);
    auto* model = const_cast<QAbstractItemModel*>(index.model());
    const QPersistentModelIndex place(index);
    connect(editor, &QLineEdit::textEdited, editor,
            [model, place](const QString& text) { model->setData(place, text, Qt::EditRole); });
    return editor;
}

void PropertyListDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    auto* line = static_cast<QLineEdit*>(editor);
    const PropertyListRow& row = rowOf(index);
    // A colour that is being typed is not one yet: leave it alone.
    const bool typing = row.kind() == PropertyListRow::Kind::Colour && line->isModified();
    if (!typing && line->text() != row.text()) line->setText(row.text());
}

void PropertyListDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                                const QModelIndex& index) const {
    const bool colour = rowOf(index).kind() == PropertyListRow::Kind::Colour;
    editor->setGeometry(option.rect.adjusted(0, 0, colour ? -arrowWidth : 0, -1));
}

// The whole cell of a yes/no is the box. The colours to choose from open at the ends of a colour's cell; what
// is between them is for typing.
bool PropertyListDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                       const QStyleOptionViewItem& option, const QModelIndex& index) {
    const PropertyListRow& row = rowOf(index);
    const auto* mouse = dynamic_cast<QMouseEvent*>(event);
    const bool click =
        mouse && event->type() == QEvent::MouseButtonRelease && mouse->button() == Qt::LeftButton;
    if (row.kind() == PropertyListRow::Kind::Boolean && index.column() == 1 &&
        event->type() != QEvent::KeyPress) {
        if (click)
            model->setData(index, row.value().toBool() ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
        return click;
    }
    const bool atEnd =
        row.kind() == PropertyListRow::Kind::Colour && index.column() == 1 && mouse &&
        (swatchOf(option.rect).contains(mouse->pos()) || arrowOf(option.rect).contains(mouse->pos()));
    if (!atEnd) return QStyledItemDelegate::editorEvent(event, model, option, index);
    if (click) static_cast<PropertyListView*>(parent())->offerColours(index);
    return true;
}

PropertyListView::PropertyListView(QWidget* parent) : QTreeWidget(parent) {
    installItemViewAccess<PropertyListView, QAccessible::Tree>();
    setColumnCount(2);
    setRootIsDecorated(false);
    setIndentation(0);
    setHeaderHidden(true);
    setItemDelegate(new PropertyListDelegate(this));
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(AnyKeyPressed | EditKeyPressed | DoubleClicked | SelectedClicked);
    header()->setStretchLastSection(true);
}

void PropertyListView::showEvent(QShowEvent* event) {
    QTreeWidget::showEvent(event);
    int width = scaledToFont(*this, captionWidth);
    for (int i = 0; i < topLevelItemCount(); ++i)
        width = qMax(width, fontMetrics().horizontalAdvance(topLevelItem(i)->text(0)) + 4 * textMargin);
    header()->resizeSection(0, qMin(width, viewport()->width() / 2));
}

PropertyListRow* PropertyListView::row(const QModelIndex& index) const {
    return static_cast<PropertyListRow*>(itemFromIndex(index));
}

void PropertyListView::offerColours(const QModelIndex& index) {
    PropertyListRow* line = row(index);
    if (line->kind() != PropertyListRow::Kind::Colour) return;
    setFocus(Qt::OtherFocusReason);  // takes over what is being typed
    const QRect cell = visualRect(index.siblingAtColumn(1));
    openColorPopup(*this, {viewport()->mapToGlobal(cell.topLeft()), cell.size()}, line->value().toUInt(),
                   line->caption(), [line](quint32 colour) { line->setValue(colour); });
}

// As a combo box opens its list
void PropertyListView::keyPressEvent(QKeyEvent* event) {
    const bool opens = event->key() == Qt::Key_F4 ||
                       (event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier));
    if (opens && currentIndex().isValid() && row(currentIndex())->kind() == PropertyListRow::Kind::Colour)
        offerColours(currentIndex());
    else
        QTreeWidget::keyPressEvent(event);
}

void PropertyListView::initViewItemOption(QStyleOptionViewItem* option) const {
    QTreeWidget::initViewItemOption(option);
    if (!hasFocus() && !isAncestorOf(QApplication::focusWidget())) option->state &= ~QStyle::State_Active;
}

bool PropertyListView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    if (state() != EditingState && index.isValid()) m_before = row(index)->value();
    return QTreeWidget::edit(index, trigger, event);
}

void PropertyListView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    PropertyListRow* edited = row(currentIndex());
    QTreeWidget::closeEditor(editor, QAbstractItemDelegate::NoHint);
    if (hint == QAbstractItemDelegate::RevertModelCache && edited) edited->setValue(m_before);
    if (hint == QAbstractItemDelegate::SubmitModelCache || hint == QAbstractItemDelegate::EditNextItem)
        setCurrentIndex(moveCursor(MoveDown, Qt::NoModifier));
    if (hint == QAbstractItemDelegate::EditPreviousItem) setCurrentIndex(moveCursor(MoveUp, Qt::NoModifier));
}

void PropertyListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTreeWidget::currentChanged(current, previous);
    if (current.isValid() && current.column() != 1) setCurrentIndex(current.siblingAtColumn(1));
}

std::vector<ItemAction> PropertyListView::itemActions(const QModelIndex& item) {
    using Kind = PropertyListRow::Kind;
    PropertyListRow* line = row(item);
    if (line->kind() == Kind::Group) return {};
    const auto chosen = [this, line](const std::function<void()>& act) {
        return [this, line, act] {
            setFocus(Qt::OtherFocusReason);
            setCurrentItem(line, 1);
            act();
        };
    };
    std::vector<ItemAction> actions{{QAccessibleActionInterface::pressAction(), chosen([] {})}};
    if (item.column() == 1 && line->kind() == Kind::Boolean)
        actions.push_back({QAccessibleActionInterface::toggleAction(),
                           chosen([line] { line->setValue(!line->value().toBool()); })});
    if (item.column() == 1 && line->kind() != Kind::Boolean)
        actions.push_back({QStringLiteral("Edit"), chosen([this, line] { editItem(line, 1); })});
    if (item.column() == 1 && line->kind() == Kind::Colour)
        actions.push_back({QAccessibleActionInterface::showMenuAction(),
                           chosen([this, line] { offerColours(indexFromItem(line, 1)); })});
    return actions;
}

void PropertyListView::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
    const PropertyListRow& line = *row(index);
    const QRect area = option.rect;
    if (line.kind() == PropertyListRow::Kind::Group) {
        painter->save();
        painter->fillRect(area, palette().window());
        QFont bold = font();
        bold.setBold(true);
        painter->setFont(bold);
        style()->drawItemText(painter, area.adjusted(textMargin, 0, -textMargin, 0),
                              Qt::AlignLeft | Qt::AlignVCenter, palette(), true, line.caption(),
                              QPalette::WindowText);
        painter->restore();
    } else {
        QTreeWidget::drawRow(painter, option, index);
    }
    painter->save();
    painter->setPen(bodyLine(palette().color(QPalette::Mid)));
    painter->drawLine(area.bottomLeft(), area.bottomRight());
    if (line.kind() != PropertyListRow::Kind::Group) {
        const int right = columnViewportPosition(1) - 1;
        painter->drawLine(right, area.top(), right, area.bottom());
    }
    painter->restore();
}

}  // namespace ui
