// SPDX-License-Identifier: GPL-3.0-or-later
// The editing of one document. Runs in an isolated world beside the page, whose scripts never run. Timers
// do not run here; what has to wait is sent to the program, which calls again.
const editor = {
    editable: false,
    token: '', // distinguishes our messages from the browser's own
    strokes: 0, // keys released so far

    tell(what, detail) {
        console.debug(this.token + JSON.stringify({ what, detail }));
    },

    elementOf(node) {
        return node.nodeType === Node.ELEMENT_NODE ? node : node.parentElement || document.documentElement;
    },

    closest(selector) {
        const selection = getSelection();
        if (!selection.rangeCount) return null;
        const found = this.elementOf(selection.getRangeAt(0).startContainer).closest(selector);
        return found && document.body && document.body.contains(found) ? found : null;
    },

    caretInto(node) {
        const range = document.createRange();
        range.selectNodeContents(node);
        range.collapse(true);
        getSelection().removeAllRanges();
        getSelection().addRange(range);
    },

    // Runs a change as one undo step.
    step(change) {
        this.history.seal();
        this.history.remember();
        const result = change();
        this.history.seal();
        return result;
    },

    // Puts a document in place of the one that is here.
    load(html, editable, marks, missing) {
        this.editable = editable;
        this.missing.mark = missing;
        this.marks.shown = marks;
        this.text.write(html);
    },

    begin() {
        this.listen();
        this.insert.own.clear();
        this.marks.apply();
        if (this.editable) {
            document.designMode = 'on';
            document.execCommand('styleWithCSS', false, false);
            document.execCommand('defaultParagraphSeparator', false, 'p');
        }
        if (document.body && this.editable) {
            document.body.focus(); // characters go nowhere as long as no element has the focus
            this.caretInto(this.firstPlace(document.body));
        }
        this.history.start();
    },

    firstPlace(body) {
        const walker = document.createTreeWalker(body, NodeFilter.SHOW_TEXT, (node) =>
            node.data.trim() && !editor.elementOf(node).closest('style,script,title,noscript,template,textarea,select')
                ? NodeFilter.FILTER_ACCEPT
                : NodeFilter.FILTER_SKIP,
        );
        return walker.nextNode() || this.innermost(body);
    },

    innermost(element) {
        const first = element.firstElementChild;
        return first && !first.matches('br,form,script,style,' + this.objects) ? this.innermost(first) : element;
    },

    // Opening a document removes all its listeners, so they are set again for each.
    listen() {
        const on = (name, handler) => document.addEventListener(name, handler, true);
        on('selectionchange', () => this.tell('state'));
        on('click', (event) => event.preventDefault());
        on('submit', (event) => event.preventDefault());
        on('dblclick', (event) => this.doubleClick(event));
        for (const leaving of ['copy', 'cut', 'dragstart']) on(leaving, () => this.missing.release());
        if (!this.editable) return;
        on('beforeinput', (event) => this.beforeInput(event));
        on('mousedown', (event) => this.press(event));
        on('keydown', (event) => this.key(event));
        on('keyup', () => (this.strokes += 1));
        on('paste', (event) => this.paste(event));
        on('copy', () => this.insert.noteOwn());
        on('cut', () => this.insert.noteOwn());
        on('compositionstart', () => this.history.seal());
    },

    beforeInput(event) {
        if (event.inputType.startsWith('history')) event.preventDefault();
        const breaks = event.inputType !== this.history.kind && !(event.inputType === 'insertFromDrop');
        if (breaks) this.history.seal();
        if (this.history.sealed) this.history.remember();
        this.history.kind = event.inputType;
    },

    // Elements that are taken whole.
    objects: 'img,input,select,textarea,hr,button',

    press(event) {
        this.history.seal();
        if (event.target.closest && event.target.closest(this.objects)) {
            this.selectObject(event.target.closest(this.objects));
            if (event.target.localName !== 'img') event.preventDefault();
        }
    },

    selectObject(element) {
        const range = document.createRange();
        range.selectNode(element);
        getSelection().removeAllRanges();
        getSelection().addRange(range);
    },

    doubleClick(event) {
        if (event.target.closest && event.target.closest(this.objects)) this.selectObject(event.target);
        this.tell('doubleClick');
    },

    key(event) {
        const name = event.key.toLowerCase();
        const control = event.ctrlKey && !event.altKey;
        let handled = true;
        if (control && name === 'z') this.commands.run(event.shiftKey ? 5033 : 5049);
        else if (control && name === 'y') this.commands.run(5033);
        else if (name === 'tab' && !event.ctrlKey && !event.altKey) this.tab(event.shiftKey);
        else handled = false;
        if (handled) event.preventDefault();
        else if (/^(arrow|home|end|page)/.test(name)) this.history.seal();
    },

    tab(backwards) {
        if (this.table.step(backwards) || backwards) return;
        if (this.table.cell()) this.step(() => this.table.insertRow());
        else this.step(() => document.execCommand('insertText', false, '\u00A0\u00A0\u00A0 '));
    },

    // The middle button and the browser's own keys come here; the program's command does the same.
    paste(event) {
        const html = event.clipboardData.getData('text/html');
        const text = event.clipboardData.getData('text/plain');
        event.preventDefault();
        this.tell('paste', html || text ? { html, text, images: [] } : undefined); // the program looks at it first
    },

    find(text, caseSensitive, backwards) {
        return window.find(text, caseSensitive, backwards, true);
    },
};
