// SPDX-License-Identifier: GPL-3.0-or-later
// Commands by their published numbers, and the states that the tool bars show.
editor.commands = {
    native: {
        5000: 'bold',
        5002: 'copy',
        5003: 'cut',
        5018: 'indent',
        5023: 'italic',
        5024: 'justifyCenter',
        5025: 'justifyLeft',
        5026: 'justifyRight',
        5030: 'insertOrderedList',
        5031: 'outdent',
        5035: 'selectAll',
        5044: 'fontName',
        5045: 'fontSize',
        5046: 'foreColor',
        5048: 'underline',
        5051: 'insertUnorderedList',
    },

    latching: [5000, 5023, 5024, 5025, 5026, 5030, 5048, 5051],

    own: {
        5006: () => editor.table.deleteColumns(),
        5007: () => editor.table.deleteRows(),
        5020: () => editor.table.insertColumn(),
        5021: () => editor.table.insertRow(),
        5033: () => editor.history.redo(),
        5049: () => editor.history.undo(),
    },

    run(id, value) {
        if (!editor.editable && id !== 5002 && id !== 5035) return false;
        if (this.own[id]) return editor.step(this.own[id]);
        return editor.step(() => {
            const done = document.execCommand(this.native[id], false, value);
            if (id === 5030 || id === 5051) this.liftLists();
            return done;
        });
    },

    // The browser makes a list inside the paragraph, which parsing the text would undo: a paragraph ends
    // where a list begins.
    liftLists() {
        const { anchorNode, anchorOffset, focusNode, focusOffset } = getSelection();
        document.querySelectorAll('p > ol, p > ul').forEach((list) => {
            const paragraph = list.parentNode;
            const rest = paragraph.cloneNode(false);
            while (list.nextSibling) rest.append(list.nextSibling);
            paragraph.after(list, rest);
            for (const half of [paragraph, rest]) if (!half.hasChildNodes()) half.remove();
        });
        if (anchorNode) getSelection().setBaseAndExtent(anchorNode, anchorOffset, focusNode, focusOffset);
    },

    value(name) {
        return document.queryCommandValue(name) || '';
    },

    fontName() {
        return this.value('fontName').split(',')[0].trim().replace(/^["']|["']$/g, '');
    },

    foreColor() {
        const parts = /^rgba?\((\d+), (\d+), (\d+)/.exec(this.value('foreColor'));
        return parts ? '#' + parts.slice(1).map((part) => Number(part).toString(16).padStart(2, '0')).join('') : '';
    },

    state() {
        const selection = getSelection();
        const present = selection.rangeCount > 0;
        return {
            present,
            selected: present && !selection.isCollapsed,
            fontName: present ? this.fontName() : '',
            fontSize: present ? this.value('fontSize') : '',
            foreColor: present ? this.foreColor() : '',
            latched: this.latching.filter((id) => present && document.queryCommandState(this.native[id])),
            undo: editor.history.done.length > 0,
            redo: editor.history.undone.length > 0,
            table: Boolean(editor.table.cell()),
            strokes: editor.strokes,
        };
    },
};
