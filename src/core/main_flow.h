#pragma once
#include <functional>
// The program's entry, in the system's order: one instance, the empty main window, the sign-in
// window, then the message loop. registerScreens fills the registry of screens by name.
// Returns the process's exit code.
int Main(int argc, char** argv, const std::function<void()>& registerScreens);
