#pragma once

#include <string>

#include "document/contents.h"

namespace document {

// The contents as text in UTF-8, without the pictures; lines end in CR LF. Bytes that are no UTF-8
// are replaced by U+FFFD.
std::string PlainText(const Contents& contents);

// The results as a table, RFC 4180: a row a result with its name, value, unit and method, behind a
// row of headings. UTF-8 without a mark, and the decimal sign is a point.
std::string Csv(const Contents& contents);

// `text` with U+FFFD for what is no UTF-8.
std::string AsUtf8(const std::string& text);

}  // namespace document
