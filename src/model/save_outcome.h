#pragma once
// How the form shown for a file that exists already ended a save.

namespace lw {

// Only WriteSamePath leaves the writing to the save itself. The values are the codes the runner shows.
enum class SaveOutcome {
    WriteSamePath = 2,  // keep the name: the save overwrites the file
    Done = 4,           // the form wrote what was wanted (a rename, the next number), or nothing was
};

}  // namespace lw
