#include "fields/edit_context.h"

#include "model/ports.h"
#include "model/program_parts.h"

namespace lw {

EditContext editContextOf(const ProgramParts& parts) {
    return {parts.document, parts.desktop, parts.taxYear, parts.platform.now()};
}

}  // namespace lw
