#pragma once

namespace kiv::soak {

struct Stage;

bool isSignedIn(Stage &stage);
bool isSignedOut(Stage &stage);
/// A conversation is there to be talked in.
bool isInChat(Stage &stage);
bool hasFailed(Stage &stage);
bool hasFiles(Stage &stage);
bool canStop(Stage &stage);

void ask(Stage &stage);
void askFromCanvas(Stage &stage);
void type(Stage &stage);
void clearDraft(Stage &stage);
void attach(Stage &stage);
void removeFile(Stage &stage);
void uploadAgain(Stage &stage);
void retry(Stage &stage);
void edit(Stage &stage);
void askAgain(Stage &stage);
void retryTurn(Stage &stage);
void pickReply(Stage &stage);
void stop(Stage &stage);
void changeScope(Stage &stage);
void newChat(Stage &stage);
void showOlder(Stage &stage);
void find(Stage &stage);
void walkHistory(Stage &stage);
void showEvents(Stage &stage);
void editProfile(Stage &stage);
void movePanels(Stage &stage);
void changeLook(Stage &stage);
void signOut(Stage &stage);
void signIn(Stage &stage);
/// Ends the program and starts it again.
void reopen(Stage &stage);

} // namespace kiv::soak
