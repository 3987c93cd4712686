#pragma once

#include "page/recording.h"

#include <QString>
#include <QStringList>

namespace test_support {

/// One line for each operation, short enough to compare lists of them:
/// `print 0,150 "Wq" Arial 10 bold #c80000`, `line 0,0 100,0`, `surface PICTUREILLUS`.
QStringList describe(const page::Recording& recording);

} // namespace test_support
