// SPDX-License-Identifier: GPL-3.0-or-later
// The elements around the selection, and the page itself.
editor.elements = {
    // The element that is selected whole (an image, a field), else none.
    selected() {
        const selection = getSelection();
        if (!selection.rangeCount) return null;
        const range = selection.getRangeAt(0);
        const { startContainer, startOffset, endContainer, endOffset } = range;
        if (startContainer !== endContainer || endOffset !== startOffset + 1) return null;
        const node = startContainer.childNodes[startOffset];
        return node && node.nodeType === Node.ELEMENT_NODE ? node : null;
    },

    path() {
        const range = editor.insert.range();
        const path = [];
        let node = this.selected() || (range && editor.elementOf(range.commonAncestorContainer));
        for (; node && node !== document.documentElement; node = node.parentElement) path.push(node);
        return path;
    },

    describe() {
        return this.path().map((element) => ({
            tag: element.localName,
            attributes: Array.from(element.attributes, ({ name, value }) => [name, editor.missing.plain(value)]),
        }));
    },

    setAttributes(level, wanted) {
        const element = this.path()[level];
        if (!element || !wanted.every(([name]) => this.isName(name))) return false;
        const names = wanted.map(([name]) => name.toLowerCase());
        for (const { name } of Array.from(element.attributes)) {
            if (!names.includes(name)) element.removeAttribute(name);
        }
        for (const [name, value] of wanted) {
            if (editor.missing.attribute(element, name) !== value) element.setAttribute(name, value);
        }
        return true;
    },

    isName(name) {
        try {
            document.createElement('p').setAttribute(name, '');
            return true;
        } catch (refused) {
            return false;
        }
    },
};
