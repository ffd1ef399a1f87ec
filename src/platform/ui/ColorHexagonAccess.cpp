// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/ColorHexagonAccess.h"

#include <QAccessibleWidget>
#include <vector>

#include "platform/ui/ColorHexagon.h"

namespace ui {

namespace {

class CellAccess : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    CellAccess(ColorHexagon* hexagon, int cell) : m_hexagon(hexagon), m_cell(cell) {}

    bool isValid() const override { return true; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(m_hexagon); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name) return {};
        const quint32 number = m_hexagon->cellColor(m_cell);
        return QColor(static_cast<int>(number & 0xff), static_cast<int>(number >> 8 & 0xff),
                      static_cast<int>(number >> 16 & 0xff))
            .name()
            .toUpper();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        const QRect place = m_hexagon->cellRect(m_cell);
        return {m_hexagon->mapToGlobal(place.topLeft()), place.size()};
    }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.selectable = true;
        state.focusable = true;
        state.selected = m_hexagon->currentCell() == m_cell;
        state.focused = state.selected && m_hexagon->hasFocus();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (name == pressAction()) m_hexagon->pick(m_cell);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  private:
    ColorHexagon* m_hexagon;
    int m_cell;
};

class HexagonAccess : public QAccessibleWidget {
  public:
    explicit HexagonAccess(ColorHexagon* hexagon) : QAccessibleWidget(hexagon, QAccessible::List) {
        for (int i = 0; i < hexagon->cellCount(); ++i)
            m_cells.push_back(QAccessible::registerAccessibleInterface(new CellAccess(hexagon, i)));
    }
    ~HexagonAccess() override {
        for (const QAccessible::Id cell : m_cells)
            QAccessible::deleteAccessibleInterface(cell);
    }

    int childCount() const override { return static_cast<int>(m_cells.size()); }
    QAccessibleInterface* child(int index) const override {
        return index >= 0 && index < childCount()
                   ? QAccessible::accessibleInterface(m_cells[static_cast<std::size_t>(index)])
                   : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* face) const override {
        for (int i = 0; i < childCount(); ++i)
            if (child(i) == face) return i;
        return -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        for (int i = 0; i < childCount(); ++i)
            if (child(i)->rect().contains(x, y)) return child(i);
        return nullptr;
    }
    QAccessibleInterface* focusChild() const override {
        auto* hexagon = static_cast<ColorHexagon*>(widget());
        return hexagon->hasFocus() ? child(hexagon->currentCell()) : nullptr;
    }

  private:
    std::vector<QAccessible::Id> m_cells;
};

QAccessibleInterface* hexagonAccess(const QString&, QObject* object) {
    auto* hexagon = qobject_cast<ColorHexagon*>(object);
    return hexagon ? new HexagonAccess(hexagon) : nullptr;
}

}  // namespace

void installColorHexagonAccess() {
    static const bool installed = (QAccessible::installFactory(hexagonAccess), true);
    Q_UNUSED(installed)
}

void announceColorCell(ColorHexagon* hexagon, int cell) {
    QAccessibleEvent event(hexagon, QAccessible::Focus);
    event.setChild(cell);
    QAccessible::updateAccessibility(&event);
}

}  // namespace ui
