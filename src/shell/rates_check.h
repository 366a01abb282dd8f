#pragma once
// The one question the shell asks of the configuration form: may it close, are its six rates good?

#include <functional>

#include "model/form.h"

namespace lw {

// Set by the configuration layer; without it every rate passes.
void setRatesCheck(std::function<bool(Form& configureForm)> check);
bool ratesOfConfigureFormPass(Form& configureForm);

}  // namespace lw
