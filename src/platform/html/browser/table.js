// SPDX-License-Identifier: GPL-3.0-or-later
// Rows and columns of the table that contains the caret. Cells that span several rows or columns keep their
// shape: they grow by what is inserted inside them and shrink by what is deleted.
editor.table = {
    cell() {
        return editor.closest('td,th');
    },

    // The cells of a table by their places: grid[row][column]. A span ends with its row group.
    grid(table) {
        const grid = Array.from(table.rows, () => []);
        Array.from(table.rows).forEach((row, y) => {
            const left = row.parentNode.rows ? row.parentNode.rows.length - row.sectionRowIndex : table.rows.length - y;
            let x = 0;
            for (const cell of row.cells) {
                while (grid[y][x]) x += 1;
                const height = Math.min(cell.rowSpan || left, left);
                for (let dy = 0; dy < height; dy += 1) {
                    for (let dx = 0; dx < cell.colSpan; dx += 1) grid[y + dy][x + dx] = cell;
                }
            }
        });
        return grid;
    },

    // Table, grid, and the rectangle of places that the selection touches.
    selected() {
        const cell = this.cell();
        if (!cell) return null;
        const table = cell.closest('table');
        const grid = this.grid(table);
        const range = getSelection().getRangeAt(0);
        const within = (node) => {
            let found = editor.elementOf(node).closest('td,th');
            while (found && found.closest('table') !== table) found = found.closest('table').closest('td,th');
            return found || cell;
        };
        const ends = [within(range.startContainer), within(range.endContainer)];
        const area = { table, grid, cell, top: Infinity, bottom: -1, left: Infinity, right: -1 };
        grid.forEach((row, y) =>
            row.forEach((at, x) => {
                if (!ends.includes(at)) return;
                area.top = Math.min(area.top, y);
                area.bottom = Math.max(area.bottom, y);
                area.left = Math.min(area.left, x);
                area.right = Math.max(area.right, x);
            }),
        );
        return area;
    },

    setSpan(cell, name, value) {
        if (value > 1) cell.setAttribute(name, value);
        else cell.removeAttribute(name);
    },

    // An empty cell that looks like another one.
    emptyLike(cell, ...without) {
        const fresh = cell.cloneNode(false);
        ['id', ...without].forEach((name) => fresh.removeAttribute(name));
        fresh.append('\u00A0');
        return fresh;
    },

    insertRow() {
        const area = this.selected();
        if (!area) return false;
        const { table, grid, bottom } = area;
        const row = table.rows[bottom];
        const fresh = row.cloneNode(false);
        fresh.removeAttribute('id');
        new Set(grid[bottom]).forEach((cell) => {
            if (!cell) return;
            const goesOn = row.nextElementSibling && (grid[bottom + 1] || []).includes(cell);
            if (goesOn) this.setSpan(cell, 'rowspan', cell.rowSpan ? cell.rowSpan + 1 : 0);
            else fresh.append(this.emptyLike(cell, 'rowspan'));
        });
        row.after(fresh);
        editor.caretInto(fresh.cells[0] || fresh);
        return true;
    },

    insertColumn() {
        const area = this.selected();
        if (!area) return false;
        const { table, grid, right } = area;
        let first = null;
        const seen = new Set();
        grid.forEach((cells, y) => {
            const cell = cells[right];
            if (!cell || seen.has(cell)) return;
            seen.add(cell);
            if (cells[right + 1] === cell) {
                this.setSpan(cell, 'colspan', cell.colSpan + 1);
                return;
            }
            const fresh = this.emptyLike(cell, 'colspan');
            cell.after(fresh);
            if (y >= area.top && !first) first = fresh;
        });
        this.column(table, right, (col) => {
            if (col.span > 1) col.span += 1;
            else col.after(col.cloneNode(false));
        });
        if (first) editor.caretInto(first);
        return true;
    },

    // The <col> of a column, if there is one.
    column(table, place, change) {
        let from = 0;
        for (const col of table.querySelectorAll(':scope > colgroup > col, :scope > col')) {
            if (place < from + col.span) return change(col);
            from += col.span;
        }
        return undefined;
    },

    deleteRows() {
        const area = this.selected();
        if (!area) return false;
        const { table, grid, top, bottom } = area;
        if (top === 0 && bottom === grid.length - 1) return this.remove(table);
        const rows = Array.from(table.rows).slice(top, bottom + 1);
        const height = (cell) => grid.filter((row) => row.includes(cell)).length;
        const lost = (cell) => grid.slice(top, bottom + 1).filter((row) => row.includes(cell)).length;
        new Set(grid.slice(top, bottom + 1).flat()).forEach((cell) => {
            const rest = height(cell) - lost(cell);
            if (rest === 0) return;
            if (rows.includes(cell.parentNode)) this.moveDown(table, grid, cell, bottom + 1);
            if (cell.rowSpan) this.setSpan(cell, 'rowspan', rest);
        });
        rows.forEach((row) => this.removeRow(row));
        this.caretAt(table, top, area.left);
        return true;
    },

    // A cell that reaches below the deleted rows continues in the row after them, at its column.
    moveDown(table, grid, cell, y) {
        const x = grid[y].indexOf(cell);
        const next = grid[y].slice(x).find((other) => other !== cell && other.parentNode === table.rows[y]);
        table.rows[y].insertBefore(cell, next || null);
    },

    removeRow(row) {
        const section = row.parentNode;
        row.remove();
        if (section.rows && section.rows.length === 0 && section.tagName !== 'TABLE') section.remove();
    },

    deleteColumns() {
        const area = this.selected();
        if (!area) return false;
        const { table, grid, left, right } = area;
        const width = Math.max(...grid.map((row) => row.length));
        if (left === 0 && right === width - 1) return this.remove(table);
        const spans = new Map();
        grid.forEach((cells) =>
            new Set(cells.slice(left, right + 1)).forEach((cell) => {
                if (cell) spans.set(cell, cells.filter((at, x) => at === cell && (x < left || x > right)).length);
            }),
        );
        spans.forEach((rest, cell) => (rest > 0 ? this.setSpan(cell, 'colspan', rest) : cell.remove()));
        for (let x = right; x >= left; x -= 1) {
            this.column(table, x, (col) => {
                if (col.span > 1) col.span -= 1;
                else col.remove();
            });
        }
        this.caretAt(table, area.top, left);
        return true;
    },

    remove(table) {
        const range = document.createRange();
        range.setStartBefore(table);
        table.remove();
        range.collapse(true);
        getSelection().removeAllRanges();
        getSelection().addRange(range);
        return true;
    },

    caretAt(table, y, x) {
        const grid = this.grid(table);
        const row = grid[Math.min(y, grid.length - 1)] || [];
        const cell = row[Math.min(x, row.length - 1)];
        if (cell) editor.caretInto(cell);
    },

    // Tab goes from cell to cell; false at the end of the table.
    step(backwards) {
        const cell = this.cell();
        if (!cell) return false;
        const cells = Array.from(cell.closest('table').rows).flatMap((row) => Array.from(row.cells));
        const next = cells[cells.indexOf(cell) + (backwards ? -1 : 1)];
        if (next) editor.caretInto(next);
        return Boolean(next);
    },
};
