#pragma once

namespace kiv::sandbox {

class Router;
struct Services;
class VoiceServer;

// Each puts one concern's routes on the router. The arguments outlive the server's threads.
void addAuthRoutes(Router &router, Services &services);
void addWorkspaceRoutes(Router &router, Services &services);
void addChatRoutes(Router &router, Services &services);
void addFileRoutes(Router &router, Services &services);
void addAccountRoutes(Router &router, Services &services);
void addVoiceRoutes(Router &router, Services &services, VoiceServer &voice);
void addPageRoutes(Router &router, Services &services);
void addSurfaceRoutes(Router &router, Services &services);
void addControlRoutes(Router &router, Services &services);

} // namespace kiv::sandbox
