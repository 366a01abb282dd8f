#include "model/program.h"
#include "shell/form_lifecycle.h"
#include "shell/form_registry.h"
#include "shell/frame_form.h"
#include "shell/startup.h"

namespace lw {

// The configuration form is the first screen; a program without it starts with the frame alone.
void openFirstChild(FrameForm&) {
    if (!hasForm("F1_Configure")) return;
    Form& configure = program().desktop.load(createForm("F1_Configure", program().parts), false);
    program().platform.sleep(250);
    if (configure.isLoaded()) placeInFrame(configure);
    program().platform.sleep(250);
}

}  // namespace lw
