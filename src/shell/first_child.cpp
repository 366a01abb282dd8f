#include "model/program.h"
#include "shell/form_registry.h"
#include "shell/frame_form.h"
#include "shell/startup.h"

namespace lw {

// The configuration form is the first screen; a program without it starts with the frame alone.
void openFirstChild(F0_MDI&) {
    if (!hasForm("F1_Configure")) return;
    program().desktop.load(createForm("F1_Configure"));
    program().platform.sleep(250);
    program().platform.sleep(250);
}

}  // namespace lw
