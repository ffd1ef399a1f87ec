// SPDX-License-Identifier: GPL-3.0-or-later
// What design view shows beside the document, by style sheets that are no part of it.
editor.marks = {
    sheets: {
        borders: `
            table[border="0"], table:not([border]), table[border="0"] > * > tr > :is(td, th),
            table:not([border]) > * > tr > :is(td, th) { outline: 1px dotted #9a9a9a; outline-offset: -1px; }
            form { outline: 1px dashed #b03a3a; outline-offset: 1px; min-height: 1.2em; }`,
        details: `
            br::after { content: "\\21B5"; color: #3a6ea5; }
            :is(p, div, form, center, blockquote, h1, h2, h3, h4, h5, h6, li, a, font, span)::before {
                font: 9px sans-serif; color: #3a6ea5; border: 1px solid #3a6ea5; border-radius: 2px;
                padding: 0 2px; margin-right: 2px; }
            ${['p', 'div', 'form', 'center', 'blockquote', 'h1', 'h2', 'h3', 'h4', 'h5', 'h6', 'li', 'a', 'font', 'span']
                .map((tag) => `${tag}::before { content: "${tag}"; }`)
                .join(' ')}`,
    },
    shown: { borders: false, details: false },

    show(name, on) {
        this.shown[name] = on;
        this.apply();
    },

    // They are not printed, and neither is the caret
    apply() {
        const marks = Object.keys(this.sheets).filter((name) => this.shown[name]);
        document.adoptedStyleSheets = [
            '@media print { * { caret-color: transparent !important; } }',
            ...marks.map((name) => '@media screen {' + this.sheets[name] + '}'),
        ].map((rules) => {
            const sheet = new CSSStyleSheet();
            sheet.replaceSync(rules);
            return sheet;
        });
    },
};
