#pragma once
// Text needs a QGuiApplication. The window has one; batch has none, so the first drawing makes
// one on the offscreen platform, which needs no display.
namespace tallimark::render {

void ensureGuiApplication();

} // namespace tallimark::render
