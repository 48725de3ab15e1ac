#pragma once

class QTableView;

namespace trel::mediadispatch {

class CustomTableModel;
class SHeaderView;

/// Makes the view the chooser's left table: columns of the model, header, delegates, looks. The
/// model is empty. Returns the header, which belongs to the view as the delegates do.
SHeaderView* setUpProgramTable(QTableView* table, CustomTableModel* model);
/// As setUpProgramTable, for the right table.
SHeaderView* setUpChoiceTable(QTableView* table, CustomTableModel* model);

} // namespace trel::mediadispatch
