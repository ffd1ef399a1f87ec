// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>
#include <QTreeWidget>
#include <QVariant>

namespace ui {

struct ItemAction;

/// One line of the list as the view keeps it.
class PropertyListRow : public QTreeWidgetItem {
  public:
    enum class Kind { Group, Text, Boolean, Colour };
    PropertyListRow(Kind kind, const QString& caption, const QString& description);

    QVariant data(int column, int role) const override;
    void setData(int column, int role, const QVariant& value) override;

    Kind kind() const { return m_kind; }
    const QString& caption() const { return m_caption; }
    void setCaption(const QString& caption);
    const QString& description() const { return m_description; }
    const QVariant& value() const { return m_value; }
    void setValue(const QVariant& value);
    /// The value as it is shown and typed.
    QString text() const;

  private:
    Kind m_kind;
    QString m_caption;
    QString m_description;
    QVariant m_value;
};

/// Draws and edits the lines. What is typed is stored at each key.
class PropertyListDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

  private:
    const PropertyListRow& rowOf(const QModelIndex& index) const;
};

/// The two columns of a PropertyList. The current cell is always a value.
class PropertyListView : public QTreeWidget {
    Q_OBJECT

  public:
    explicit PropertyListView(QWidget* parent);
    PropertyListRow* row(const QModelIndex& index) const;
    /// A line is chosen; a yes/no is toggled; any other value is opened for typing, a colour also for
    /// choosing.
    std::vector<ItemAction> itemActions(const QModelIndex& item);
    /// Opens the colours to choose from for a line that is one.
    void offerColours(const QModelIndex& index);
    /// Without the keyboard focus the current line keeps a shade only.
    void initViewItemOption(QStyleOptionViewItem* option) const override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    /// Sets the column of the captions to the width of the longest.
    void showEvent(QShowEvent* event) override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;

  private:
    QVariant m_before;  ///< value of the open cell when it was opened
};

}  // namespace ui
