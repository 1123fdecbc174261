// Takes a picture of the application's window once its page is complete on screen.

#include "Desktop.h"
#include "PageOnScreen.h"
#include "Process.h"

#include <cstdio>

namespace {

int fail(const char* reason)
{
    std::fprintf(stderr, "velmaro-screenshot: %s\n", reason);
    return 1;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 2)
        return fail("usage: velmaro-screenshot FILE.png");

    std::optional<desktop::DesktopWindow> window;
    if (!desktop::eventually(
            [&] { return (window = desktop::Desktop::window("Velmaro Online")).has_value(); }))
        return fail("no window has come");
    const auto page = desktop::pageOnScreen(*window, desktop::generousLimit);
    if (!page)
        return fail("no page has come");
    return page->picture.writePNG(arguments[1]) ? 0 : fail("cannot write the file");
}
