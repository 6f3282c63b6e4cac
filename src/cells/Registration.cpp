#include "Registration.h"

#include "ForecastCell.h"
#include "ForecastDayView.h"
#include "ObsCell.h"
#include "QKWindpfeil.h"

namespace zephyrix {

void registerCells() {
    Nib::registerClass<ForecastCell>();
    Nib::registerClass<ForecastDayView>();
    Nib::registerClass<ObsCell>();
    Nib::registerClass<QKWindpfeil>();
}

}  // namespace zephyrix
