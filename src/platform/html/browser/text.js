// SPDX-License-Identifier: GPL-3.0-or-later
// The document as text, in and out.
editor.text = {
    // The document by the serialisation rules of the HTML standard, with what they leave out and a second
    // reading needs: the doctype's identifiers, and the line feed that the parser drops at the start of a
    // preformatted block. The doctype comes first, as some readers ignore it elsewhere.
    read() {
        const doubled = editor.text.blocksThatLoseALineFeed();
        doubled.forEach((text) => text.insertData(0, '\n'));
        let out = document.doctype ? editor.text.doctype(document.doctype) : '';
        for (const node of document.childNodes) {
            if (node.nodeType === Node.ELEMENT_NODE) out += node.outerHTML;
            else if (node.nodeType === Node.COMMENT_NODE) out += '<!--' + node.data + '-->';
        }
        doubled.forEach((text) => text.deleteData(0, 1));
        editor.history.forget();
        return editor.missing.plain(out);
    },

    blocksThatLoseALineFeed() {
        return Array.from(document.querySelectorAll('pre,listing,textarea'))
            .map((block) => block.firstChild)
            .filter((first) => first && first.nodeType === Node.TEXT_NODE && first.data.startsWith('\n'));
    },

    doctype(node) {
        const quoted = (text) => (text.includes('"') ? " '" + text + "'" : ' "' + text + '"');
        let out = '<!DOCTYPE ' + node.name;
        if (node.publicId) out += ' PUBLIC' + quoted(node.publicId) + (node.systemId ? quoted(node.systemId) : '');
        else if (node.systemId) out += ' SYSTEM' + quoted(node.systemId);
        return out + '>';
    },

    // Through the document object: an address that contains the text could take 2 MB at most.
    write(html) {
        editor.history.stop();
        document.open();
        document.write(html);
        document.close();
        editor.begin();
    },

    told: { version: null, text: '' }, // what the program was given last

    // What has to be put in the place of a stretch of the text that the caller knows, by its version, to get the one
    // that is here; none where they are the same. A caller that knows another one than the last is given it all.
    readNewer(version) {
        editor.history.flush();
        const now = editor.history.version;
        if (version === now) return null;
        const whole = this.told.version !== version;
        const old = whole ? '' : this.told.text;
        const text = this.read();
        this.told = { version: now, text };
        let from = this.alike(old, text, (a, b, start, end) => a.slice(start, end) === b.slice(start, end));
        if (/[\ud800-\udbff]/.test(text.charAt(from - 1))) from -= 1; // half a character cannot travel
        const stretch = (text, start, end) => text.slice(text.length - end, text.length - start);
        let behind = this.alike(old.slice(from), text.slice(from), (a, b, start, end) =>
            stretch(a, start, end) === stretch(b, start, end),
        );
        if (/[\udc00-\udfff]/.test(text.charAt(text.length - behind))) behind -= 1;
        const removed = old.length - from - behind;
        return { version: now, whole, from, removed, text: text.slice(from, text.length - behind) };
    },

    // How many characters two texts have alike at one of their ends. `same` compares a stretch of it.
    alike(a, b, same) {
        let known = 0;
        let most = Math.min(a.length, b.length);
        while (known < most) {
            const half = (known + most + 1) >> 1;
            if (same(a, b, known, half)) known = half;
            else most = half - 1;
        }
        return known;
    },
};
