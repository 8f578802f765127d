#pragma once

namespace quorin {

// True while the first-run wizard is open; the wizard sets and clears it.
bool& WizardActive();

}  // namespace quorin
