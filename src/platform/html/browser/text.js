// The document as text, in and out.
editor.text = {
    // The document by the serialisation rules of the HTML standard, with what they leave out and a second
    // reading needs: the doctype's identifiers, and the line feed that the parser takes off the start of a
    // preformatted block. The doctype comes first, as some readers heed it nowhere else.
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

    // Through the document object: an address that holds the text could take 2 MB at most.
    write(html) {
        editor.history.stop();
        document.open();
        document.write(html);
        document.close();
        editor.begin();
    },

    // The text if it changed since the version that the caller knows.
    readNewer(version) {
        editor.history.flush();
        return version === editor.history.version ? null : { text: editor.text.read(), version: editor.history.version };
    },
};
