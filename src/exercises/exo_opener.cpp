#include "exercises/exo_opener.h"

#include "viewer/multim.h"

#include <QScopedValueRollback>

namespace exercises {

void ExoOpener::open() {
    if (exo_)
        return;
    Exo exo({parts_.shared, test_, parts_.drawing, parts_.pictures, parts_.fonts, parts_.screen,
             parts_.messageBoxes, *this, parts_.calculator, parts_.voice, parts_.author},
            window_);
    const QScopedValueRollback<Exo*> open(exo_, &exo);
    exo.run();
}

void ExoOpener::hideReturnToTest() {
    window_.setReturnToTestVisible(false);
}

} // namespace exercises
