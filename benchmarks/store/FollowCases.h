#pragma once

namespace bench {

/// What a program costs at rest that follows what is in effect in a store.
void addFollowCases();

} // namespace bench
