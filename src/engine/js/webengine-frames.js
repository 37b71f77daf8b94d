// Stands in each frame from its document's creation on, in a world that the page's scripts cannot see, and tells the
// engine of two moments: "created" when the document has come into being, "load" when it has been loaded with all that
// belongs to it. What it says begins with TOKEN, which the engine puts in and no page knows. It is put in twice, once for
// the page and once for the profile, and works once.
(() => {
    "use strict";

    if (globalThis.trawlexFrames) {
        return;
    }
    globalThis.trawlexFrames = true;

    const tell = (moment) => {
        console.info("TOKEN" + JSON.stringify({ moment, top: window === window.top, url: location.href, origin }));
    };
    tell("created");
    window.addEventListener("load", (event) => {
        // A page can send an event named "load" itself, but not one that the browser vouches for.
        if (event.isTrusted && event.target === document) {
            tell("load");
        }
    });
})();
