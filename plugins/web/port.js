// Gives the page its way to the program: window.webkit.messageHandlers.vcall. What is posted before
// the way is there waits for it.
(function () {
    var waiting = [];
    var port = null;
    function postMessage(body) {
        if (port)
            port.post('vcall', body);
        else
            waiting.push(body);
    }
    window.webkit = { messageHandlers: { vcall: { postMessage: postMessage } } };
    new QWebChannel(qt.webChannelTransport, function (channel) {
        port = channel.objects.port;
        waiting.splice(0).forEach(postMessage);
    });
})();
