// Put into the documents of frames of other sites before their own scripts: such a frame puts no boxes before anybody.
// One that it showed while its page is left would take the browser down.
window.alert = function alert() {};
window.confirm = function confirm() {
    return false;
};
window.prompt = function prompt() {
    return null;
};
window.print = function print() {};
