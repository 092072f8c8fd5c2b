// Gives the page the microphone that the person has chosen, window.__microphone, where it asks for
// any. The engine numbers its devices in its own way: they are told apart by their names, which it
// tells only while a microphone is open.
(function () {
    var media = navigator.mediaDevices;
    if (!media)
        return;
    var open = media.getUserMedia.bind(media);

    function chosen(devices) {
        return devices.find(function (device) {
            return device.kind === 'audioinput' && device.label === window.__microphone;
        });
    }

    media.getUserMedia = function (constraints) {
        if (!constraints || !constraints.audio || !window.__microphone)
            return open(constraints);
        var first = null;
        return media.enumerateDevices().then(function (devices) {
            if (devices.some(function (device) { return device.label; }))
                return devices;
            return open({ audio: true }).then(function (stream) {
                first = stream;
                return media.enumerateDevices();
            });
        }).then(function (devices) {
            var device = chosen(devices);
            var audio = constraints.audio === true ? {} : constraints.audio;
            return open(device ? Object.assign({}, constraints, {
                audio: Object.assign({}, audio, { deviceId: { exact: device.deviceId } })
            }) : constraints);
        }).finally(function () {
            if (first)
                first.getTracks().forEach(function (track) { track.stop(); });
        });
    };
})();
