// SPDX-License-Identifier: GPL-3.0-or-later
// A tree of nodes with keys.
#pragma once

#include <map>
#include <memory>
#include <QIcon>
#include <QPersistentModelIndex>
#include <QTreeWidget>

#include "platform/Status.h"

namespace ui {

class GroupNode;
class GroupTreeItem;
struct ItemAction;

/// A reference to a node. It outlives its place in the tree: once removed it still answers with the
/// key and text it had, and has neither parent nor children.
using GroupNodeRef = std::shared_ptr<GroupNode>;

class GroupNode {
  public:
    const QString& Key() const { return m_key; }
    const QString& Text() const { return m_text; }
    GroupNodeRef Parent() const;
    int Children() const;

  private:
    friend class GroupTree;
    friend class GroupTreeItem;
    QString m_key;
    QString m_text;
    GroupTreeItem* m_item = nullptr;  ///< null once removed
};

/// A tree of nodes with keys.
///
/// A click is the release of the left button over the node on which it was pressed, the press of the right
/// button, or a step of the keyboard to another node; Return and the space bar click the current node again.
/// A click on a node is reported by nodeClick, then click, and after a mouse button by mouseUp; a click into
/// empty space by click and mouseUp only. A drag is no click: the selection goes back to the node last
/// clicked.
class GroupTree : public QTreeWidget {
    Q_OBJECT

  public:
    explicit GroupTree(QWidget* parent = nullptr);
    ~GroupTree() override;

    /// Names an icon of the icon theme for use as a node's image.
    void setImage(const QString& image, const QString& iconName);
    /// Lets no longer text be typed into a label than this many UTF-16 units; 0 for any.
    void setLongestLabel(int length) { m_longestLabel = length; }
    /// Painted in the middle while no node has a child.
    void setEmptyText(const QString& text);

    void Clear();
    int Count() const { return static_cast<int>(m_items.size()); }
    /// Adds the last child of the node `parentKey`; an empty parent key adds a root. `selectedImage` is shown
    /// while the node is selected. Fails with ItemNotFound (no such parent) or DuplicateKey.
    Result<GroupNodeRef> Add(const QString& parentKey, const QString& key, const QString& text,
                             const QString& image, const QString& selectedImage);
    /// Removes a node with all below it; ItemNotFound for an unknown key.
    Status Remove(const QString& key);
    /// Puts a node, with all below it, after the children of another. Fails with ItemNotFound, or
    /// NotSupported for a root, or when the new parent is the node itself or is below it.
    Status Move(const QString& key, const QString& parentKey);
    /// Null for an unknown key.
    GroupNodeRef Node(const QString& key) const;
    Status Expand(const QString& key);

    /// Null when nothing is selected.
    GroupNodeRef SelectedItem() const;
    /// Selects a node without any signal.
    void setSelectedItem(const GroupNodeRef& node);
    /// Opens the nodes above it and scrolls to it.
    void EnsureVisible(const GroupNodeRef& node);
    /// Selects a node and reports it, as a click does.
    void Click(const GroupNodeRef& node);
    /// Null for empty space. In coordinates of the viewport.
    GroupNodeRef HitTest(const QPoint& position) const;
    /// Marks a node, or none.
    void setDropHighlight(const GroupNodeRef& node);
    GroupNodeRef DropHighlight() const { return m_highlight; }
    /// Shows a node as one that is to move, and the one before as usual again; null for none.
    void setMarked(const GroupNodeRef& node);
    /// Opens the selected node's text for editing, unless beforeLabelEdit cancels.
    void StartLabelEdit();

    /// A node is clicked, opened or closed, renamed (unless it is a root), or has the menu of the right
    /// button.
    std::vector<ItemAction> itemActions(const QModelIndex& item);

    void initViewItemOption(QStyleOptionViewItem* option) const override;

  Q_SIGNALS:
    void nodeClick(const ui::GroupNodeRef& node);
    void click();
    void mouseUp(Qt::MouseButton button, const QPoint& globalPosition);
    void mouseMove();
    /// Setting *cancel keeps the label from being opened, or the new text from being taken over.
    void beforeLabelEdit(bool* cancel);
    void afterLabelEdit(const QString& newText, bool* cancel);
    /// A drag is about to begin on the node; setting *cancel keeps it from it.
    void beforeDrag(const ui::GroupNodeRef& node, bool* cancel);
    /// Something is dragged over the node, or over none.
    void draggedOver(const ui::GroupNodeRef& node);
    /// The current row of a DataGrid of this program was dropped on the node, or on none.
    void rowDropped(const ui::GroupNodeRef& node);
    /// A node of this tree was dropped on the node, or on none.
    void nodeDropped(const ui::GroupNodeRef& node);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    friend class GroupTreeDelegate;
    friend class GroupTreeItem;

    GroupTreeItem* itemOf(const QString& key) const;
    void clickNode(const GroupNodeRef& node);
    void finishLabelEdit(const QModelIndex& index, const QString& text);

    std::map<QString, GroupTreeItem*> m_items;
    std::map<QString, QIcon> m_images;
    int m_longestLabel = 0;
    QString m_emptyText;
    GroupNodeRef m_highlight;
    GroupNodeRef m_marked;
    GroupNodeRef m_pressed;
    GroupNodeRef m_lastClicked;
    bool m_pressedEmptySpace = false;
    bool m_dragRefused = false;  ///< since the button went down
};

}  // namespace ui
