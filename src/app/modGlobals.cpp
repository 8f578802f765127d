#include "app/modGlobals.h"

namespace quorin {

bool& WizardActive() {
    static bool active = false;
    return active;
}

}  // namespace quorin
