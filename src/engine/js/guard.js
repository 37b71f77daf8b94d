// Put into every document before its own scripts, in a world of its own: a page does not start other programs by itself
// (mail, telephone, shops), each of which would put a window or a question before nobody. What the user clicks goes on,
// and so do forms: a page whose form is held back never ends loading.
navigation.addEventListener("navigate", (event) => {
    const ours = /^(https?|file|ftp|about|blob|data|javascript):/i;
    const source = event.sourceElement;
    const fromForm = source === undefined || (source !== null && (source.localName === "form" || source.form));
    if (!event.userInitiated && !fromForm && !ours.test(event.destination.url)) {
        event.preventDefault();
    }
});
