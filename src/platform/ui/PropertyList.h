// SPDX-License-Identifier: GPL-3.0-or-later
// A form as a list of captions and values.
#pragma once

#include <map>
#include <QString>
#include <QVariant>
#include <QWidget>

class QLabel;

namespace ui {

class PropertyListRow;
class PropertyListView;

/// One line of a PropertyList.
class PropertyItem {
  public:
    QString Caption() const;
    void setCaption(const QString& caption);
    /// A text: QString. A yes/no: bool. A colour: its number, red in the low byte. What is typed into an open
    /// cell counts at once.
    QVariant Value() const;
    void setValue(const QVariant& value);

  private:
    friend class PropertyList;
    explicit PropertyItem(PropertyListRow* row) : m_row(row) {}
    PropertyListRow* m_row;
};

/// A form as a list of captions and values in groups, with a line below that describes the current item. Keys
/// are compared without case.
///
/// Typing into an item starts editing. Return and Tab take the value over and go down, Esc brings the old
/// value back; both go to the dialog while no cell is open. Space or a click toggles a yes/no. A colour is
/// typed as "#rrggbb", and anything else leaves it as it was; or it is picked among those that a click on its
/// swatch or arrow, F4 or Alt+Down offers.
class PropertyList : public QWidget {
    Q_OBJECT

  public:
    explicit PropertyList(QWidget* parent = nullptr);

    /// Items are in the order in which they are added.
    void addGroup(const QString& key, const QString& caption);
    void addText(const QString& key, const QString& caption, const QString& description);
    void addBoolean(const QString& key, const QString& caption, const QString& description);
    void addColour(const QString& key, const QString& caption, const QString& description);

    /// Null for an unknown key.
    PropertyItem* Item(const QString& key);
    void setCurrentItem(const QString& key);

  private:
    void add(const QString& key, PropertyListRow* row);

    PropertyListView* m_view;
    QLabel* m_description;
    std::map<QString, PropertyItem> m_items;  ///< by lower-case key
};

}  // namespace ui
