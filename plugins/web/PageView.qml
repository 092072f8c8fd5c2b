import QtQuick
import QtWebEngine
import Kiv.Web

// The engine's view of a page, closed to everything that a page of the platform does not need.
WebEngineView {
    id: view

    required property EnginePage page

    function report() {
        page.notePlace(url, loadProgress, canGoBack)
    }

    profile: page.profile
    Accessible.name: title
    settings.allowRunningInsecureContent: false
    settings.allowWindowActivationFromJavaScript: false
    settings.autoLoadImages: true
    settings.dnsPrefetchEnabled: false
    settings.errorPageEnabled: false
    settings.focusOnNavigationEnabled: false
    settings.fullScreenSupportEnabled: false
    settings.hyperlinkAuditingEnabled: false
    settings.javascriptCanAccessClipboard: false
    settings.javascriptCanOpenWindows: false // but after a click
    settings.javascriptCanPaste: false
    settings.localContentCanAccessFileUrls: false
    settings.localContentCanAccessRemoteUrls: false
    settings.localStorageEnabled: true
    settings.navigateOnDropEnabled: false
    settings.pdfViewerEnabled: false
    settings.pluginsEnabled: false
    settings.screenCaptureEnabled: false
    settings.unknownUrlSchemePolicy: WebEngineSettings.DisallowUnknownUrlSchemes
    settings.webRTCPublicInterfacesOnly: true

    onUrlChanged: report()
    onLoadProgressChanged: report()
    onCanGoBackChanged: report()
    onLoadingChanged: info => page.noteLoad(info.status, info.url, info.errorDomain, info.errorCode, info.errorString)
    onRenderProcessTerminated: page.noteEnd()

    onNavigationRequested: request => {
        if (!page.admits(request.url, request.isMainFrame))
            request.reject()
    }
    onNewWindowRequested: request => {
        if (request.userInitiated)
            page.follow(request.requestedUrl)
    }
    // What a page says to itself does not belong in the program's log.
    onJavaScriptConsoleMessage: {}
    onContextMenuRequested: request => request.accepted = true
    onCertificateError: error => error.rejectCertificate()
    onAuthenticationDialogRequested: request => {
        request.accepted = true
        request.dialogReject()
    }
    onFeaturePermissionRequested: (origin, feature) => grantFeaturePermission(origin, feature, false)
    // A window with words of the page would pass for one of the program's, and there would be no end of
    // them. What asks whether to stay is answered: whoever leaves, leaves.
    onJavaScriptDialogRequested: request => {
        request.accepted = true
        if (request.type === JavaScriptDialogRequest.DialogTypeBeforeUnload)
            request.dialogAccept()
        else
            request.dialogReject()
    }
    onFullScreenRequested: request => request.reject()
    onRegisterProtocolHandlerRequested: request => request.reject()
    onFileSystemAccessRequested: request => request.reject()
    onQuotaRequested: request => request.reject()

    Connections {
        target: view.page.profile

        function onDownloadRequested(download) {
            download.cancel()
            view.page.handOver(download.url)
        }
    }
}
