#pragma once
// The configuration form loaded on the desktop of a test program, with the operator's typing.

#include <memory>
#include <string>

#include "config/configure_form.h"
#include "config_fixture.h"
#include "model/keys.h"

namespace lw::test {

class ConfigureFormTest : public ConfigTest {
protected:
    ConfigureForm& open() {
        form = static_cast<ConfigureForm*>(&desktop().load(std::make_unique<ConfigureForm>(program().parts)));
        return *form;
    }

    void type(Control& field, const std::string& text) {
        desktop().setFocus(field);
        for (char c : text) desktop().typeCharacter(c);
    }
    void tab() { desktop().pressKey(keys::kTab, 0, keys::kTab); }

    ConfigureForm* form = nullptr;
};

}  // namespace lw::test
