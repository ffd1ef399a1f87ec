// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/ColorHexagon.h"

#include <cmath>
#include <limits>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include "platform/ui/ColorHexagonAccess.h"
#include "platform/ui/ColorNumber.h"

namespace ui {

namespace {

constexpr int radius = 6;        // rings around the cell in the middle
constexpr qreal cellWidth = 24;  // of a hexagon on one of its corners
constexpr qreal rowPitch = 21;
constexpr qreal cellHalfHeight = 14;
constexpr qreal margin = 8;
constexpr int greys = 2 * radius + 1;
constexpr qreal fullRing = 4;  // the ring of the pure colours; outside of it they darken

/// By the place of a cell, seen from the middle, and its ring.
QColor colorAt(const QPointF& place, int ring) {
    if (ring == 0) return Qt::white;
    // In whole degrees, so that the corners are the pure colours.
    const qreal degrees =
        std::round(std::atan2(-place.y() * std::sqrt(0.75) * cellWidth / rowPitch, place.x()) * 180 / M_PI);
    const qreal lightness = ring <= fullRing ? 1 - 0.5 * ring / fullRing : 0.5 - 0.13 * (ring - fullRing);
    return QColor::fromHslF(static_cast<float>(std::fmod(degrees + 360, 360) / 360), 1.0F,
                            static_cast<float>(lightness))
        .toRgb();
}

qreal distance(const QColor& a, const QColor& b) {
    return std::hypot(a.red() - b.red(), a.green() - b.green(), a.blue() - b.blue());
}

}  // namespace

ColorHexagon::ColorHexagon(QWidget* parent) : QWidget(parent) {
    installColorHexagonAccess();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    makeHexagon();
    makeGreys();
    setColor(0);
}

void ColorHexagon::makeHexagon() {
    const QPointF middle(margin + cellWidth * (radius + 0.5), margin + cellHalfHeight + rowPitch * radius);
    for (int row = -radius; row <= radius; ++row) {
        const int length = 2 * radius + 1 - std::abs(row);
        for (int i = 0; i < length; ++i) {
            const QPointF place(cellWidth * (i - (length - 1) / 2.0), rowPitch * row);
            const int along = i - (length - 1) / 2;
            const int sideways = 2 * along - (length % 2 == 0 ? 1 : 0);
            const int ring = qMax(std::abs(row), (std::abs(sideways) + std::abs(row)) / 2);
            m_cells.push_back({middle + place, colorAt(place, ring), false});
        }
    }
}

void ColorHexagon::makeGreys() {
    const qreal top = m_cells.back().centre.y() + cellHalfHeight + margin;
    for (int i = 0; i < greys; ++i) {
        const int level = qRound(255.0 * i / (greys - 1));
        m_cells.push_back({QPointF(margin + cellWidth * (i + 0.5), top + cellWidth / 2),
                           QColor(level, level, level), true});
    }
}

QSize ColorHexagon::sizeHint() const {
    return QSize(qRound(cellWidth * greys + 2 * margin),
                 qRound(m_cells.back().centre.y() + cellWidth / 2 + margin));
}

quint32 ColorHexagon::cellColor(int cell) const {
    return numberOf(m_cells[static_cast<std::size_t>(cell)].color);
}

QRect ColorHexagon::cellRect(int cell) const {
    return outline(m_cells[static_cast<std::size_t>(cell)]).boundingRect().toRect();
}

void ColorHexagon::setColor(quint32 color) {
    m_color = color;
    const QColor wanted = colorOf(color);
    qreal nearest = std::numeric_limits<qreal>::max();
    for (int i = 0; i < cellCount(); ++i) {
        const qreal away = distance(m_cells[static_cast<std::size_t>(i)].color, wanted);
        if (away >= nearest) continue;
        nearest = away;
        m_current = i;
    }
    update();
}

void ColorHexagon::setCurrentCell(int cell) {
    if (cell < 0 || cell == m_current) return;
    m_current = cell;
    update();
    announceColorCell(this, cell);
}

void ColorHexagon::pick(int cell) {
    setCurrentCell(cell);
    m_color = cellColor(cell);
    update();
    Q_EMIT picked(m_color);
}

QPolygonF ColorHexagon::outline(const Cell& cell) const {
    if (cell.square) {
        return QRectF(cell.centre.x() - cellWidth / 2, cell.centre.y() - cellWidth / 2, cellWidth, cellWidth);
    }
    QPolygonF corners;
    for (int i = 0; i < 6; ++i) {
        const qreal turn = (i + 0.5) * M_PI / 3;
        corners << cell.centre + QPointF(cellWidth / 2 * std::cos(turn) / std::cos(M_PI / 6),
                                         cellHalfHeight * std::sin(turn));
    }
    return corners;
}

int ColorHexagon::cellAt(const QPointF& place) const {
    for (int i = 0; i < cellCount(); ++i)
        if (outline(m_cells[static_cast<std::size_t>(i)]).containsPoint(place, Qt::OddEvenFill)) return i;
    return -1;
}

/// The nearest cell in the direction of an arrow key; -1 for none.
int ColorHexagon::neighbour(int key) const {
    const QPointF from = m_cells[static_cast<std::size_t>(m_current)].centre;
    const bool across = key == Qt::Key_Left || key == Qt::Key_Right;
    const int sign = key == Qt::Key_Left || key == Qt::Key_Up ? -1 : 1;
    int found = -1;
    qreal nearest = std::numeric_limits<qreal>::max();
    for (int i = 0; i < cellCount(); ++i) {
        const QPointF away = m_cells[static_cast<std::size_t>(i)].centre - from;
        const qreal along = sign * (across ? away.x() : away.y());
        const qreal aside = std::abs(across ? away.y() : away.x());
        // Beside means in the same row; above and below, within half a cell or a little more.
        if (along < 1 || (across && aside > 1)) continue;
        const qreal cost = along + 2 * aside;
        if (cost >= nearest) continue;
        nearest = cost;
        found = i;
    }
    return found;
}

void ColorHexagon::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Window), 1));
    for (const Cell& cell : m_cells) {
        painter.setBrush(cell.color);
        painter.drawPolygon(outline(cell));
    }
    // A light rim inside a dark one is seen on every colour.
    const QPolygonF current = outline(m_cells[static_cast<std::size_t>(m_current)]);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::black, 4, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawPolygon(current);
    painter.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawPolygon(current);
    if (!hasFocus()) return;
    QStyleOptionFocusRect rim;
    rim.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &rim, &painter, this);
}

void ColorHexagon::mousePressEvent(QMouseEvent* event) {
    const int cell = cellAt(event->position());
    if (event->button() == Qt::LeftButton && cell >= 0) pick(cell);
}

void ColorHexagon::mouseMoveEvent(QMouseEvent* event) {
    setCurrentCell(cellAt(event->position()));
}

void ColorHexagon::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
            setCurrentCell(neighbour(event->key()));
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            pick(m_current);
            break;
        default:
            QWidget::keyPressEvent(event);
    }
}

}  // namespace ui
