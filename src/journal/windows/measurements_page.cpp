#include "journal/windows/measurements_page.h"

namespace trimlog {

MeasurementsPage::MeasurementsPage(const JournalParts &parts, QWidget *parent)
    : JournalPage(parts, QStringLiteral("MeasurementsPage"), parent) {}

void MeasurementsPage::TakeFocus() { setFocus(); }

void MeasurementsPage::Print() {}

void MeasurementsPage::ShowView(JournalView /*view*/) {}

void MeasurementsPage::ShowRows() {}

}  // namespace trimlog
