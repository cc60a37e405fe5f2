#pragma once
// How the process starts: the clock read once, the store opened, the login, the main frame.
namespace tallimark {

class App;

// Runs the start-up. Returns false when the process is to stop (the store did not open).
bool StartUp(App& app);

} // namespace tallimark
