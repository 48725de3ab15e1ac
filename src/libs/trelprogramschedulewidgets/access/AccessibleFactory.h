#pragma once

namespace trel::mediadispatch {

/// Lets screen readers find the rows of the plan tables, below them their editors, the cells of the
/// chooser and the buttons of both. To be called before the first card is made; further calls
/// change nothing.
///
/// The toolkit asks for what is told of any object of the process. It is answered for widgets in
/// the cards and for the area of them, for the tables and buttons of panel and chooser, and for the
/// windows of the library, which say whether they are modal; the toolkit's own stands for all
/// others.
void installAccessibleFactory();

} // namespace trel::mediadispatch
