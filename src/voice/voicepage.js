(function () {
    function post(t, d) {
        var message = { t: t };
        Object.keys(d || {}).forEach(function (key) { message[key] = d[key]; });
        try {
            window.webkit.messageHandlers.vcall.postMessage(message);
        } catch (e) {}
    }

    // The one live conversation.
    var conv = null;
    // Counts the starts and the ends. A call whose number is another one by now is stale.
    var turn = 0;
    // Counts the starts alone, as the program does: what belongs to a call names its start.
    var starts = 0;

    function end(conversation) {
        try {
            if (conversation)
                conversation.endSession();
        } catch (e) {}
    }

    function handlers(s, d, tell) {
        var body = { tamrix_call_id: s.call_id };
        if (d)
            body.chat_digest = String(d).slice(0, 1600);
        return {
            dynamicVariables: s.dynamic_variables || undefined,
            customLlmExtraBody: body,
            overrides: s.overrides || undefined,
            onModeChange: function (p) {
                tell('mode', { mode: p && p.mode === 'speaking' ? 'speaking' : 'listening' });
            },
            onMessage: function (m) {
                tell('message', {
                    message: m.message === null || m.message === undefined ? '' : String(m.message),
                    source: String(m.source || ''),
                    type: String(m.type || '')
                });
            },
            onPing: function (p) {
                var isObject = p !== null && typeof p === 'object';
                var ms = p;
                if (isObject)
                    ms = p.ping_ms !== null && p.ping_ms !== undefined ? p.ping_ms : p.pingMs;
                tell('ping', { ms: Number(ms) });
            },
            onError: function (msg) {
                tell('error', { message: typeof msg === 'string' ? msg : (msg && msg.message) || '' });
            },
            onDisconnect: function (d) {
                d = d || {};
                tell('disconnect', {
                    reason: String(d.reason || ''),
                    message: String(d.message || ''),
                    closeCode: Number(d.closeCode || 0),
                    closeReason: String(d.closeReason || '')
                });
            }
        };
    }

    window.__nativeStart = function (sessionJson, chatDigest) {
        var start = ++starts;
        var s = JSON.parse(sessionJson);
        var d = chatDigest ? String(chatDigest) : '';
        var last = null;
        window.__nativeEnd();
        var number = turn;
        function isStale() {
            return number !== turn;
        }
        function tell(t, d) {
            if (!isStale())
                post(t, Object.assign({ start: start }, d));
        }
        function attempt(address, transport) {
            var options = Object.assign(handlers(s, d, tell), address);
            options.connectionType = transport;
            return window.__ElevenConversation.startSession(options).then(function (c) {
                if (isStale())
                    return end(c);
                conv = c;
                if (conv)
                    tell('connected', { transport: transport });
            });
        }
        function failed(e) {
            last = e;
            if (!isStale())
                conv = null;
        }
        Promise.resolve().then(function () {
            if (!isStale() && s.signed_url)
                return attempt({ signedUrl: s.signed_url }, 'websocket');
        }).catch(failed).then(function () {
            if (!isStale() && !conv && s.token)
                return attempt({ conversationToken: s.token }, 'webrtc');
        }).catch(failed).then(function () {
            if (!conv)
                throw last || new Error('no voice transport');
        }).catch(function (e) {
            tell('connectFail', { message: e && e.message ? String(e.message) : '' });
        });
        return true;
    };

    window.__nativeContext = function (text) {
        try {
            if (conv && conv.sendContextualUpdate)
                conv.sendContextualUpdate(String(text));
        } catch (e) {}
        return true;
    };

    window.__nativeEnd = function () {
        ++turn;
        end(conv);
        conv = null;
        return true;
    };

    window.__nativeMute = function (m) {
        try {
            if (conv && conv.setMicMuted)
                conv.setMicMuted(!!m);
        } catch (e) {}
        return true;
    };

    window.__nativeSay = function (text) {
        try {
            if (conv && conv.sendUserMessage)
                conv.sendUserMessage(String(text));
        } catch (e) {}
        return true;
    };

    var client = document.createElement('script');
    client.src = '/vendor/elevenlabs-client.1.21.0.js';
    client.onload = function () {
        if (window.__ElevenConversation)
            post('ready');
        else
            post('connectFail', { message: 'SDK loaded without a global' });
    };
    client.onerror = function () {
        post('connectFail', { message: 'SDK load failed' });
    };
    document.head.appendChild(client);
})();
