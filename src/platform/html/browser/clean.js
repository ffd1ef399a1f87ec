// SPDX-License-Identifier: GPL-3.0-or-later
// Cleans text of other programs: content stays; what acts, what leads to other schemes, and what steers
// another program's layout goes. All is called through the prototypes: a form's control named "attributes"
// shadows that member, and in a document an image does.
editor.clean = (() => {
    const getter = (prototype, name) => {
        const { get } = Object.getOwnPropertyDescriptor(prototype, name);
        return (node) => get.call(node);
    };
    const method = (prototype, name) => {
        const called = prototype[name];
        return (node, ...values) => called.apply(node, values);
    };
    const body = getter(Document.prototype, 'body');
    const all = method(Document.prototype, 'querySelectorAll');
    const walk = method(Document.prototype, 'createTreeWalker');
    const childNodes = getter(Node.prototype, 'childNodes');
    const parent = getter(Node.prototype, 'parentNode');
    const removeChild = method(Node.prototype, 'removeChild');
    const localName = getter(Element.prototype, 'localName');
    const names = method(Element.prototype, 'getAttributeNames');
    const attribute = method(Element.prototype, 'getAttribute');
    const setAttribute = method(Element.prototype, 'setAttribute');
    const removeAttribute = method(Element.prototype, 'removeAttribute');
    const replaceWith = method(Element.prototype, 'replaceWith');

    const dropped =
        'script,style,meta,link,title,base,xml,object,embed,applet,iframe,frame,frameset,portal,noscript,template,' +
        'animate,animateMotion,animateTransform,set';
    // What a mail reader loads automatically
    const loaded = ['src', 'srcset', 'imagesrcset', 'poster', 'background', 'lowsrc', 'dynsrc', 'ping', 'style'];
    const addressed = [...loaded, 'href', 'action', 'formaction', 'cite', 'longdesc', 'data', 'codebase', 'manifest'];
    // Local files were looked at before (insert.dropLocal)
    const schemes = ['', 'http:', 'https:', 'ftp:', 'mailto:', 'tel:', 'sms:', 'cid:', 'file:'];

    // As the URL parser reads it. An address with a placeholder in its host is invalid for the parser.
    const schemeOf = (address) => {
        const text = address.replace(/^[\0-\x20]+/, '').replace(/[\t\n\r]/g, '');
        try {
            return new URL(text).protocol;
        } catch {
            const scheme = /^[a-z][a-z0-9+.-]*:/i.exec(text);
            return scheme ? scheme[0].toLowerCase() : '';
        }
    };

    const addressesOf = (name, value) => {
        if (!addressed.includes(name)) return [];
        if (/srcset$/.test(name)) return value.split(/\s*,\s+|\s+/).filter(Boolean);
        if (name === 'ping') return value.split(/\s+/).filter(Boolean);
        if (name !== 'style') return [value];
        const named = editor.insert.plainStyle(value).matchAll(/url\(\s*(?:"([^"]*)|'([^']*)|([^)]*))|"([^"]*)"|'([^']*)'/gi);
        return Array.from(named, (found) => found.slice(1).find(Boolean) || '');
    };

    const mayStand = (name, address) => {
        const scheme = schemeOf(address);
        if (schemes.includes(scheme)) return true;
        return scheme === 'data:' && loaded.includes(name) && /^[\0-\x20]*data:image\//i.test(address);
    };

    const isRemote = (address) => /^(https?|ftp):$/.test(schemeOf(address)) || /^[\0-\x20]*[/\\]{2}/.test(address);

    const cleanStyle = (element) => {
        const style = attribute(element, 'style');
        if (style === null) return;
        const parts = style.match(/(?:[^;"'(]|"[^"]*"|'[^']*'|\([^)]*\)|["'(])+/g) || [];
        const kept = parts.filter((part) => {
            const plain = editor.insert.plainStyle(part);
            const steers = /^\s*(mso-|tab-stops|page:|behavior|-moz-binding)|expression\s*\(/i.test(plain);
            return part.trim() && !steers && addressesOf('style', part).every((each) => mayStand('style', each));
        });
        if (kept.length) setAttribute(element, 'style', kept.map((part) => part.trim()).join('; '));
        else removeAttribute(element, 'style');
    };

    const cleanElement = (element) => {
        for (const name of names(element)) {
            const value = attribute(element, name);
            const bad =
                /^on|^xmlns|:|^srcdoc$/.test(name) ||
                (name !== 'style' && !addressesOf(name, value).every((each) => mayStand(name, each))) ||
                (name === 'class' && /^(mso|xl\d)/i.test(value)) ||
                (name === 'lang' && localName(element) === 'span');
            if (bad) removeAttribute(element, name);
        }
        cleanStyle(element);
        const foreign = localName(element).includes(':');
        const bare = localName(element) === 'span' && names(element).length === 0;
        if (foreign || bare) replaceWith(element, ...childNodes(element));
    };

    const drop = (node) => parent(node) && removeChild(parent(node), node);

    return {
        // The nodes of the body that are left, and what of them is loaded from the web.
        document(source) {
            Array.from(all(source, dropped)).forEach(drop);
            const walker = walk(source, source, NodeFilter.SHOW_COMMENT);
            const comments = [];
            while (walker.nextNode()) comments.push(walker.currentNode);
            comments.forEach(drop);
            editor.insert.dropLocal(source);
            Array.from(all(source, 'body *')).forEach(cleanElement);
            const remote = new Set();
            for (const element of all(source, 'body *')) {
                for (const name of names(element).filter((each) => loaded.includes(each))) {
                    addressesOf(name, attribute(element, name)).filter(isRemote).forEach((each) => remote.add(each));
                }
            }
            return { nodes: Array.from(childNodes(body(source))), remote: Array.from(remote) };
        },
    };
})();
