#pragma once

namespace kiv::soak {

struct Stage;

bool always(Stage &stage);
bool isServerUp(Stage &stage);
bool isServerDown(Stage &stage);
bool isOnline(Stage &stage);
bool isOffline(Stage &stage);

void strike(Stage &stage);
void relent(Stage &stage);
void killServer(Stage &stage);
void freezeServer(Stage &stage);
void reviveServer(Stage &stage);
void pullCable(Stage &stage);
void plugCable(Stage &stage);
void sleep(Stage &stage);
void setWall(Stage &stage);

} // namespace kiv::soak
