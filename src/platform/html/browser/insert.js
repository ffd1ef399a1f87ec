// SPDX-License-Identifier: GPL-3.0-or-later
// Content that comes from outside: fragments, pasted text, images, links.
editor.insert = {
    blocks: 'address,article,aside,blockquote,center,dd,details,dir,div,dl,dt,fieldset,figure,footer,form,h1,h2,h3,h4,h5,h6,header,hr,li,main,menu,nav,ol,p,pre,section,table,ul',

    range() {
        const selection = getSelection();
        if (!selection.rangeCount || !document.body) return null;
        const range = selection.getRangeAt(0);
        if (!document.body.contains(range.commonAncestorContainer)) {
            range.selectNodeContents(document.body);
            range.collapse(false);
        }
        return range;
    },

    // Puts a fragment in place of the selection and the caret after it.
    fragment(html) {
        const range = this.range();
        if (!range) return false;
        const page = document.createRange();
        page.selectNodeContents(document.body);
        return this.nodes(range, page.createContextualFragment(html));
    },

    nodes(range, content) {
        const last = content.lastChild;
        if (!last) return false;
        range.deleteContents();
        this.leaveForm(range, content);
        this.leaveParagraph(range, content);
        this.dropFiller(range);
        range.insertNode(content);
        const inside = last.nodeName === 'FORM' && !last.firstChild;
        if (inside) range.selectNodeContents(last);
        else range.setStartAfter(last);
        range.collapse(true);
        getSelection().removeAllRanges();
        getSelection().addRange(range);
        return true;
    },

    // A form cannot be inside another: the next parse of the text would drop it.
    leaveForm(range, content) {
        const around = editor.elementOf(range.startContainer).closest('form');
        if (!around || !content.querySelector('form')) return;
        range.setStartAfter(around);
        range.collapse(true);
    },

    // A paragraph ends where a block begins, so it is split around the block.
    leaveParagraph(range, content) {
        const paragraph = editor.elementOf(range.startContainer).closest('p');
        if (!paragraph || !content.querySelector(this.blocks)) return;
        const rest = document.createRange();
        rest.setStart(range.startContainer, range.startOffset);
        rest.setEndAfter(paragraph);
        const second = rest.extractContents();
        range.setStartAfter(paragraph);
        range.collapse(true);
        range.insertNode(second);
        range.setStartAfter(paragraph);
        range.collapse(true);
        for (const half of [paragraph, paragraph.nextSibling]) {
            if (half && !half.textContent && !half.querySelector(editor.objects)) half.remove();
        }
    },

    // The line break that keeps an empty paragraph open makes room for the content.
    dropFiller(range) {
        const place = range.startContainer;
        const only = place.childNodes.length === 1 ? place.firstChild : null;
        if (!only || only.nodeName !== 'BR') return;
        only.remove();
        range.setStart(place, 0);
        range.collapse(true);
    },

    plain(text) {
        const lines = text.replace(/\r\n?/g, '\n').split('\n');
        const content = document.createDocumentFragment();
        lines.forEach((line, index) => {
            if (index > 0) content.append(document.createElement('br'));
            if (line) content.append(line.replace(/ (?= )|^ | $/g, '\u00A0').replace(/\t/g, '\u00A0\u00A0\u00A0 '));
        });
        const range = this.range();
        return Boolean(range) && this.nodes(range, content);
    },

    // Text of other programs: what is content stays, what steers their own layout engine goes.
    foreign(html) {
        const source = new DOMParser().parseFromString(this.between(editor.missing.plain(html)), 'text/html');
        const { nodes, remote } = editor.clean.document(source);
        if (remote.length) editor.tell('remote', remote.slice(0, 100));
        const range = this.range();
        if (!range) return false;
        const content = document.createDocumentFragment();
        content.append(...nodes);
        return this.nodes(range, content);
    },

    addresses: 'src,srcset,imagesrcset,href,background,poster,data,lowsrc,dynsrc,longdesc,cite,action,formaction,ping'.split(','),

    // The local files that an attribute names, each as the browser's own address for it. The URL parser skips
    // blanks and controls in front, and tabs and line breaks anywhere; a style may be written with escapes.
    localFiles(name, value) {
        let texts = [value];
        if (/srcset$/.test(name)) texts = value.split(/[\s,]+/);
        if (name === 'style') texts = this.plainStyle(value).split(/[()"',]+/);
        const local = name === 'style' || this.addresses.includes(name) ? /^(file:|[/\\])/i : /^file:/i;
        return texts
            .map((text) => text.replace(/[\t\n\r]/g, '').replace(/^[\0-\x20]+/, ''))
            .filter((text) => local.test(text))
            .map((text) => {
                try {
                    return new URL(text, 'file:///').href;
                } catch {
                    return text;
                }
            });
    },

    plainStyle(style) {
        const character = (_, code, plain) => plain || String.fromCharCode(parseInt(code, 16) & 0xffff);
        return style.replace(/\/\*[^]*?\*\//g, '').replace(/\\(?:([0-9a-f]{1,6})\s?|([^\n]))/gi, character);
    },

    // Names and local files of the attributes of a document that name any. Through the prototypes: a form
    // control may be named like a method.
    namingLocalFiles(source, found) {
        for (const element of Document.prototype.querySelectorAll.call(source, '*')) {
            for (const name of Element.prototype.getAttributeNames.call(element)) {
                const files = this.localFiles(name, editor.missing.attribute(element, name));
                if (files.length) found(element, name, files);
            }
        }
    },

    own: new Set(), // local files that the document contains, or contained when something was copied or cut from it

    noteOwn() {
        this.namingLocalFiles(document, (element, name, files) => files.forEach((file) => this.own.add(file)));
    },

    // A page that was copied must not name files of this machine, which would then travel with the message. Its
    // images go, other elements lose what names the file. What the document contains already may come back.
    dropLocal(source) {
        this.noteOwn();
        const dropped = new Set();
        this.namingLocalFiles(source, (element, name, files) => {
            const foreign = files.filter((file) => !this.own.has(file));
            if (!foreign.length) return;
            foreign.forEach((file) => dropped.add(file));
            if (element.localName === 'img') Element.prototype.remove.call(element);
            else Element.prototype.removeAttribute.call(element, name);
        });
        if (dropped.size) editor.tell('leftOut', Array.from(dropped).slice(0, 100));
    },

    between(html) {
        const mark = '<!--StartFragment-->';
        const start = html.indexOf(mark);
        const end = html.lastIndexOf('<!--EndFragment-->');
        if (start < 0 || end <= start) return html;
        const marked = html.slice(start + mark.length, end);
        // A spreadsheet marks the rows of its table without the table.
        if (!/^\s*<(col|colgroup|thead|tbody|tr|td|th)\b/i.test(marked)) return marked;
        const tables = html.slice(0, start).match(/<table\b[^>]*>/gi) || ['<table>'];
        return tables.pop() + marked + '</table>';
    },

    paste(clipboard) {
        if (clipboard.html) return this.foreign(clipboard.html);
        if (clipboard.images.length) return clipboard.images.map((source) => this.image({ source })).every(Boolean);
        return Boolean(clipboard.text) && this.plain(clipboard.text);
    },

    dropAt(x, y, clipboard) {
        const range = document.caretRangeFromPoint(x, y);
        if (range) {
            getSelection().removeAllRanges();
            getSelection().addRange(range);
        }
        return this.paste(clipboard);
    },

    selectedImage() {
        const element = editor.elements.selected();
        return element && element.localName === 'img' ? element : null;
    },

    imageAttributes: { src: 'source', alt: 'alternativeText', width: 'width', height: 'height', align: 'align' },

    describeImage() {
        const image = this.selectedImage();
        if (!image) return null;
        const info = {};
        for (const [attribute, key] of Object.entries(this.imageAttributes)) info[key] = editor.missing.attribute(image, attribute) || '';
        return info;
    },

    image(info) {
        const range = this.range();
        if (!range) return false;
        const present = this.selectedImage();
        const image = present || document.createElement('img');
        for (const [attribute, key] of Object.entries(this.imageAttributes)) {
            const value = info[key] || '';
            if (value || attribute === 'src' || attribute === 'alt') {
                if (editor.missing.attribute(image, attribute) !== value) image.setAttribute(attribute, value);
            } else image.removeAttribute(attribute);
        }
        if (present) return true;
        image.setAttribute('border', '0');
        const content = document.createDocumentFragment();
        content.append(image);
        return this.nodes(range, content);
    },

    describeLink() {
        const link = editor.closest('a[href]');
        return link ? { address: link.getAttribute('href'), unsubscribes: this.unsubscribes(link) } : null;
    },

    relWords(link) {
        return (link.getAttribute('rel') || '').split(/[\t\n\f\r ]+/).filter(Boolean);
    },

    unsubscribes(link) {
        return this.relWords(link).some((word) => word.toLowerCase() === 'unsubscribe');
    },

    setUnsubscribes(link, wanted) {
        if (this.unsubscribes(link) === wanted) return;
        const words = this.relWords(link).filter((word) => !/^(unsubscribe|one-click)$/i.test(word));
        if (wanted) words.push('unsubscribe', 'one-click');
        if (words.length) link.setAttribute('rel', words.join(' '));
        else link.removeAttribute('rel');
    },

    link(address, unsubscribes, text) {
        const range = this.range();
        if (!range) return false;
        const around = editor.closest('a[href]');
        if (!address) return around ? this.unwrap(around) : document.execCommand('unlink');
        if (around) {
            around.setAttribute('href', address);
            this.setUnsubscribes(around, unsubscribes);
            return true;
        }
        if (!range.collapsed) return this.linkSelection(address, unsubscribes);
        const link = document.createElement('a');
        link.setAttribute('href', address);
        this.setUnsubscribes(link, unsubscribes);
        link.append(text || address);
        const content = document.createDocumentFragment();
        content.append(link);
        return this.nodes(range, content);
    },

    // The browser's command resolves addresses, which would damage a placeholder: it gets a mark of ours first.
    linkSelection(address, unsubscribes) {
        const mark = 'vestrola-link:';
        if (!document.execCommand('createLink', false, mark)) return false;
        document.querySelectorAll('a[href="' + mark + '"]').forEach((link) => {
            link.setAttribute('href', address);
            this.setUnsubscribes(link, unsubscribes);
        });
        return true;
    },

    unwrap(link) {
        const selection = getSelection();
        const { anchorNode, anchorOffset, focusNode, focusOffset } = selection;
        link.replaceWith(...link.childNodes);
        if (document.contains(anchorNode) && document.contains(focusNode)) {
            selection.setBaseAndExtent(anchorNode, anchorOffset, focusNode, focusOffset);
        }
        return true;
    },
};
