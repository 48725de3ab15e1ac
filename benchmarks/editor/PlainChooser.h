#pragma once

#include "Samples.h"

#include <QDialog>

class QStandardItemModel;

namespace bench {

/// Fills a model with the same cells as the left table of the chooser has.
void fillOffer(QStandardItemModel& model, const ProgramMap& programs);

/// The widgets of the chooser in a plain window, with the left table filled.
class PlainChooser : public QDialog
{
public:
    explicit PlainChooser(const ProgramMap& programs);
};

} // namespace bench
