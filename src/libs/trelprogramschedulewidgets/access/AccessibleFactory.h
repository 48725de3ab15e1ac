#pragma once

namespace trel::mediadispatch {

/// Lets screen readers find the rows of the plan tables, and below them their editors. To be called
/// before the first card is made; further calls change nothing.
///
/// The toolkit asks for what is told of any object of the process. The answer to it is of widgets
/// in the cards alone; the toolkit's own stands for all others.
void installAccessibleFactory();

} // namespace trel::mediadispatch
