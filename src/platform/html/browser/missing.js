// SPDX-License-Identifier: GPL-3.0-or-later
// Images that name files which are not there come with a mark in front of the address. It makes them addresses that the
// browser knows to be no picture, without asking the program about each. The mark is never visible outside.
editor.missing = {
    mark: '',

    plain(text) {
        return this.mark ? text.replaceAll(this.mark, '') : text;
    },

    attribute(element, name) {
        const value = Element.prototype.getAttribute.call(element, name);
        return value === null ? null : this.plain(value);
    },

    // What is selected is about to leave the document: it goes with the addresses that the message contains.
    release() {
        const selection = getSelection();
        if (!this.mark || !selection.rangeCount) return;
        const range = selection.getRangeAt(0);
        editor.history.flush();
        for (const name of ['src', 'background']) {
            for (const element of document.querySelectorAll('[' + name + '^="' + this.mark + '"]')) {
                if (range.intersectsNode(element)) {
                    Element.prototype.setAttribute.call(element, name, this.attribute(element, name));
                }
            }
        }
        editor.history.forget();
    },
};
