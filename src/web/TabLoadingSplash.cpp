#include "web/TabLoadingSplash.h"

#include "platform/appkit/NSApplication.h"
#include "platform/ui/Views.h"

namespace velmaro {

using ui::ApplicationIcon;
using ui::Color;
using ui::Fill;
using ui::View;
using ui::ZStack;

View TabLoadingSplash::body() const
{
    const View icon = platform::NSApplication::shared().hasApplicationIconImage()
        ? ApplicationIcon().frame({.width = 160, .height = 160}).opacity(0.15)
        : View();

    return ZStack{
        {},
        Fill(Color::windowBackground),
        Fill(Color::gray.withOpacity(0.08)),
        icon,
    };
}

} // namespace velmaro
