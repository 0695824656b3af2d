#pragma once

class Scene;

/// Whether what is shown on a page has all the choices that the page requires.
namespace validity {

bool productSelection(const Scene &scene);
bool dipSwitches(const Scene &scene);
bool functionTab(const Scene &scene);
bool userTab(const Scene &scene);
bool system(const Scene &scene);
bool heatPump(const Scene &scene);
bool hydronicModule(const Scene &scene);
bool cooling(const Scene &scene);
bool heating(const Scene &scene);
bool hotWater(const Scene &scene);

} // namespace validity
