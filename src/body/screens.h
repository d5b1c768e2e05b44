#pragma once
// Registers the screens of this subsystem by name, so others can open them.
void RegisterBodyScreens();
