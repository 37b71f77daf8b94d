// Reads the document it stands in. The file is one expression, an object with two operations; it is evaluated in a
// world of its own, where nothing that the page's scripts have redefined is seen.
//
//   read(what, frame)   what: "content" (markup, title, address), "title", "html", "text", "links", "frameCount",
//                       "selection"
//                       frame: index in window.frames, or -1 for the top document
//     gives { texts: [...] }              the answer, texts only (a count as its digits)
//        or { lengths: [...], ticket }    the same, too long for one message: the texts' lengths; the texts joined
//                                         without a separator are fetched with piece()
//        or { error: "...", number }      what was asked for cannot be read; number: 9 no such frame, 70 access denied,
//                                         0 anything else
//   piece(ticket, from) gives the joined text from position `from` on, at most a little over `pieceLength` characters,
//                       "" at its end; null when another read has taken the ticket's place. No piece ends between the
//                       halves of a character.
(() => {
    "use strict";

    const pieceLength = 4 * 1024 * 1024;

    // Properties are fetched from the prototypes: an element named "links" or "title" hides the document's own.
    const getter = (prototype, name) => Object.getOwnPropertyDescriptor(prototype, name).get;
    const documentLinks = getter(Document.prototype, "links");
    const documentTitle = getter(Document.prototype, "title");
    const documentRoot = getter(Document.prototype, "documentElement");
    const frameDocument = getter(window, "document");
    const markupOf = getter(Element.prototype, "innerHTML");
    const plainTextOf = getter(HTMLElement.prototype, "innerText");

    const isHtml = (root) => root.namespaceURI === "http://www.w3.org/1999/xhtml";

    const html = (page) => {
        const root = documentRoot.call(page);
        return root ? markupOf.call(root) : "";
    };
    // Only elements of HTML know innerText.
    const text = (page) => {
        const root = documentRoot.call(page);
        if (!root) {
            return "";
        }
        return isHtml(root) ? plainTextOf.call(root) : root.textContent;
    };
    const links = (page) => Array.from(documentLinks.call(page), (link) => String(link.href));

    // Half a character has no place in a message: it would arrive as something of another length.
    const halves = /\p{Surrogate}/gu;
    const wellFormed = (each) => (each.toWellFormed ? each.toWellFormed() : each.replace(halves, "\ufffd"));

    const selection = (view) => {
        const inner = view.document.activeElement;
        if (inner && (inner.localName === "iframe" || inner.localName === "frame") && inner.contentDocument) {
            return selection(inner.contentWindow);
        }
        return String(view.getSelection() ?? "");
    };

    const operations = {
        content: (page) => [html(page), documentTitle.call(page) || location.href, location.href],
        title: (page) => [documentTitle.call(page) || location.href],
        html: (page) => [html(page)],
        text: (page) => [text(page)],
        links,
        frameCount: () => [String(window.length)],
        selection: () => [selection(window)],
    };

    const documentOf = (frame) => {
        if (frame < 0) {
            return document;
        }
        if (frame >= window.length) {
            throw { number: 9, message: `The page has no frame ${frame}.` };
        }
        try {
            return frameDocument.call(window[frame]);
        } catch (refused) {
            throw { number: 70, message: `Access is denied: frame ${frame} belongs to another site.` };
        }
    };

    let kept = "";
    let ticket = 0;

    const keep = (texts) => {
        kept = texts.join("");
        return { lengths: texts.map((each) => each.length), ticket: ++ticket };
    };

    const read = (what, frame) => {
        kept = "";
        try {
            const texts = operations[what](documentOf(frame)).map(wellFormed);
            const total = texts.reduce((sum, each) => sum + each.length, 0);
            return total <= pieceLength ? { texts } : keep(texts);
        } catch (failure) {
            return { error: String(failure.message ?? failure), number: failure.number ?? 0 };
        }
    };

    const piece = (wanted, from) => {
        if (wanted !== ticket) {
            return null;
        }
        let end = Math.min(from + pieceLength, kept.length);
        if (end < kept.length && (kept.charCodeAt(end - 1) & 0xfc00) === 0xd800) {
            ++end;
        }
        const part = kept.slice(from, end);
        if (end === kept.length) {
            kept = "";
        }
        return part;
    };

    return { read, piece };
})()
