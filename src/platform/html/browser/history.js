// SPDX-License-Identifier: GPL-3.0-or-later
// Undo and redo. Every change of the tree is recorded as it happens, whatever its source: typing, the browser's own
// commands, our changes of tables and attributes. A step is the list of changes between two moments of rest, and is
// undone by applying the changes' inverses backwards, so that the same nodes come back.
editor.history = {
    version: 0, // of the document, for those who keep a copy
    done: [],
    undone: [],
    kind: '', // of the change under way, as reported by the browser ("insertText")
    sealed: true, // the next change begins a new step
    before: null, // selection before the change under way
    observer: null,

    limit: 1000,

    start() {
        this.version += 1;
        this.done = [];
        this.undone = [];
        this.sealed = true;
        this.observer = new MutationObserver((records) => this.take(records));
        this.watch();
        this.remember();
    },

    watch() {
        this.observer.observe(document, {
            subtree: true,
            childList: true,
            attributes: true,
            attributeOldValue: true,
            characterData: true,
            characterDataOldValue: true,
        });
    },

    stop() {
        if (this.observer) this.observer.disconnect();
    },

    // Drops what was recorded: changes that leave the document as it was.
    forget() {
        if (this.observer) this.observer.takeRecords();
    },

    flush() {
        const records = this.observer ? this.observer.takeRecords() : [];
        if (records.length) this.take(records);
        return records.length > 0;
    },

    seal() {
        this.flush();
        this.sealed = true;
        this.kind = '';
    },

    remember() {
        const selection = getSelection();
        this.before = selection.rangeCount
            ? [selection.anchorNode, selection.anchorOffset, selection.focusNode, selection.focusOffset]
            : null;
    },

    restore(places) {
        if (!places) return;
        const clamp = (node, offset) =>
            Math.min(offset, node.nodeType === Node.ELEMENT_NODE ? node.childNodes.length : node.length);
        const [anchor, anchorOffset, focus, focusOffset] = places;
        if (!document.contains(anchor) || !document.contains(focus)) return;
        getSelection().setBaseAndExtent(anchor, clamp(anchor, anchorOffset), focus, clamp(focus, focusOffset));
    },

    take(records) {
        this.version += 1;
        const changes = records.map((record) => ({
            type: record.type,
            target: record.target,
            added: Array.from(record.addedNodes),
            removed: Array.from(record.removedNodes),
            previous: record.previousSibling,
            next: record.nextSibling,
            name: record.attributeName,
            namespace: record.attributeNamespace,
            value: record.oldValue,
        }));
        if (this.continues()) this.append(this.done[this.done.length - 1].changes, changes);
        else this.done.push({ changes, kind: this.kind, before: this.before });
        if (this.done.length > this.limit) this.done.shift();
        this.undone = [];
        this.sealed = false;
        this.remember();
        editor.tell('changed');
    },

    // A run of typing, or of deleting, is one step; so is a move by the mouse.
    continues() {
        if (this.sealed || this.done.length === 0) return false;
        const last = this.done[this.done.length - 1].kind;
        return (
            (last === this.kind && /^(insertText|insertCompositionText|delete(Content|Word).*)?$/.test(this.kind)) ||
            (last === 'deleteByDrag' && this.kind === 'insertFromDrop')
        );
    },

    // While one text node grows, its first old value is all that undo needs.
    append(changes, more) {
        for (const change of more) {
            const last = changes[changes.length - 1];
            if (change.type === 'characterData' && last.type === change.type && last.target === change.target) continue;
            changes.push(change);
        }
    },

    // Applies the inverse of a change and turns the change into the inverse's inverse.
    invert(change) {
        const { type, target } = change;
        if (type === 'characterData') {
            const value = target.data;
            target.data = change.value;
            change.value = value;
        } else if (type === 'attributes') {
            const value = target.getAttributeNS(change.namespace, change.name);
            if (change.value === null) target.removeAttributeNS(change.namespace, change.name);
            else target.setAttributeNS(change.namespace, change.name, change.value);
            change.value = value;
        } else {
            change.added.forEach((node) => node.remove());
            const place = change.next || (change.previous ? change.previous.nextSibling : target.firstChild);
            change.removed.forEach((node) => target.insertBefore(node, place));
            [change.added, change.removed] = [change.removed, change.added];
        }
    },

    undo() {
        return this.move(this.done, this.undone, (step) => step.changes.slice().reverse());
    },

    redo() {
        return this.move(this.undone, this.done, (step) => step.changes);
    },

    move(from, to, inOrder) {
        this.seal();
        const step = from.pop();
        if (!step) return false;
        const after = this.before;
        inOrder(step).forEach((change) => this.invert(change));
        this.forget();
        this.version += 1;
        this.restore(step.before);
        step.before = after;
        to.push(step);
        this.remember();
        editor.tell('changed');
        return true;
    },
};
