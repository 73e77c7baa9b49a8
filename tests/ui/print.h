// How Qt's types are named in the lists of tests.
#pragma once

#include <ostream>

#include <QSizeF>

/// "760x680"; found by GoogleTest because it is in the namespace of the type.
inline void PrintTo(const QSizeF& size, std::ostream* out) {
  *out << size.width() << "x" << size.height();
}
