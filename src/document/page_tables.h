#pragma once

#include "document/contents.h"
#include "document/page_flow.h"

namespace document {

// Puts a block where the flow stands.
void Put(PageFlow& flow, const Block& block);

}  // namespace document
