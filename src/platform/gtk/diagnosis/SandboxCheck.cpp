#include "platform/gtk/diagnosis/Checks.h"
#include "platform/gtk/webkit/Sandbox.h"

#include <glib.h>

namespace gtk {

std::vector<Finding> checkSandbox()
{
    if (const auto problem = sandboxProblem()) {
        return {{
            .title = "Sandbox",
            .finding = *problem,
            .verdict = Verdict::problem,
            .advice = "Install bubblewrap and xdg-dbus-proxy, and let the system allow user "
                      "namespaces.",
        }};
    }
    if (g_getenv("WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS")) {
        return {{
            .title = "Sandbox",
            .finding = "switched off in the environment",
            .verdict = Verdict::warning,
            .advice = "Unset WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS.",
        }};
    }
    return {{"Sandbox", "bubblewrap, xdg-dbus-proxy and user namespaces work"}};
}

} // namespace gtk
