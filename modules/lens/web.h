#pragma once

#include "web/view.h"

namespace lens {

/// The simulation for browsers.
std::unique_ptr<modules::View> openView(std::u16string_view exercise, std::u16string& why);

} // namespace lens
