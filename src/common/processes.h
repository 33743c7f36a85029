#pragma once

#include <cstdint>
#include <string>

namespace controls {
class Form;
}

namespace common {

/// Starts a command, without a shell, and waits for its end with the window alive, looking about once a
/// second. `stile` is the child's window: 1 normal, with the focus. A command that can't be started returns
/// at once and without a word; so does any exit status. After a wait the mouse pointer is the default one.
void EseguiEAttendi(const std::string& comando, std::int32_t stile);

/// Lets events run until more than this number of seconds has passed on the timer. A pause that midnight
/// falls into has no end before the next day reaches that time.
void Pausa(std::int32_t secondi);

/// Puts a window above all others, or takes that away again: the window of a handle, or the object's own.
void FinestraInPrimoPiano(std::int32_t finestra, bool attivo);
void FinestraInPrimoPiano(const controls::Form& finestra, bool attivo);

}  // namespace common
