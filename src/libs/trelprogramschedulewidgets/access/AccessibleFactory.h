#pragma once

namespace trel::mediadispatch {

/// Lets screen readers find the rows of the plan tables, below them their editors, and the cells of
/// the chooser. To be called before the first card is made; further calls change nothing.
///
/// The toolkit asks for what is told of any object of the process. It is answered for widgets in
/// the cards and for the tables of the chooser alone; the toolkit's own stands for all others.
void installAccessibleFactory();

} // namespace trel::mediadispatch
