#pragma once
// Pictures of the frame's command buttons: a picture file when the name is one, else a small drawing.

#include <QIcon>
#include <string>

namespace lw::ui {

// Names with a drawing: open, save, clear, close, print, clip, person, people, configure, calendar, quit.
QIcon commandIcon(const std::string& picture);

// Pictures known by name: the drawings above and the icons of the boxes (information, exclamation,
// question, critical). Empty for a name that is none of these.
bool hasNamedPicture(const std::string& name);
QIcon namedPicture(const std::string& name);

}  // namespace lw::ui
