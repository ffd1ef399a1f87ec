// SPDX-License-Identifier: GPL-3.0-or-later
// Margins, colours and background of the page: attributes of the body.
editor.page = {
    colors: [
        ['bgcolor', '#ffffff'],
        ['text', '#000000'],
        ['link', '#0000ff'],
        ['alink', '#0000ff'],
        ['vlink', '#800080'],
    ],

    attribute(name) {
        return (document.body && editor.missing.attribute(document.body, name)) || '';
    },

    // No undo steps, but changes of the document.
    setAttribute(name, value) {
        this.change((body) => body.setAttribute(name, value));
    },

    removeAttribute(name) {
        this.change((body) => body.removeAttribute(name));
    },

    change(apply) {
        if (!document.body) return;
        editor.history.seal();
        apply(document.body);
        editor.history.forget();
        editor.history.version += 1;
        editor.tell('changed');
    },

    color(index) {
        const [name, unset] = this.colors[index];
        return this.attribute(name) || unset;
    },

    setColor(index, value) {
        this.setAttribute(this.colors[index][0], value);
    },
};
