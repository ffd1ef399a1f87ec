// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QWidget>
#include <vector>

namespace ui {

/// A colour picker: a hexagon of coloured cells, white in the middle, with a row of greys below. Colours are
/// numbers, red in the low byte. Arrow keys walk from cell to cell, Return and the space bar pick. Assistive
/// programs find a list of colours, each named by its hexadecimal value.
class ColorHexagon : public QWidget {
    Q_OBJECT

  public:
    explicit ColorHexagon(QWidget* parent = nullptr);

    /// The selected colour, whether or not a cell shows it.
    quint32 Color() const { return m_color; }
    /// Selects a colour without any signal; the walk of the keys starts at the cell that comes nearest.
    void setColor(quint32 color);

    int cellCount() const { return static_cast<int>(m_cells.size()); }
    quint32 cellColor(int cell) const;
    QRect cellRect(int cell) const;
    int currentCell() const { return m_current; }
    /// Picks a cell as a click on it does.
    void pick(int cell);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  Q_SIGNALS:
    void picked(quint32 color);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    struct Cell {
        QPointF centre;
        QColor color;
        bool square;  ///< one of the row of greys
    };

    void makeHexagon();
    void makeGreys();
    int cellAt(const QPointF& place) const;
    int neighbour(int key) const;
    void setCurrentCell(int cell);
    QPolygonF outline(const Cell& cell) const;

    std::vector<Cell> m_cells;
    quint32 m_color = 0;
    int m_current = 0;
};

}  // namespace ui
