#include "results/PageItems.h"

namespace TVR {

namespace {

struct SavedItem {
  const char* key;
  int PageItems::*id;
};

constexpr SavedItem savedItems[] = {
    {"user_field_id", &PageItems::programIdentification},
    {"project_field_id", &PageItems::projectAddress},
    {"plot_field_id", &PageItems::mapView},
    {"legend_field_id", &PageItems::mapLegend},
    {"scale_field_id", &PageItems::mapScale},
    {"date_field_id", &PageItems::date},
    {"logo_field_id", &PageItems::logo},
    {"summary_field_id", &PageItems::summary},
    {"well_field_id", &PageItems::wells},
    {"data_field_id", &PageItems::results},
    {"map_image_field_id", &PageItems::mapImage},
    {"temperature_plot_field_id", &PageItems::temperaturePlot},
    {"demand_plot_field_id", &PageItems::ratePlot},
};

} // namespace

QMap<QString, int> PageItems::fieldIds() const {
  QMap<QString, int> ids;
  for (const SavedItem& item : savedItems)
    ids[item.key] = this->*item.id;
  return ids;
}

void PageItems::setFieldIds(const QMap<QString, int>& ids) {
  for (const SavedItem& item : savedItems)
    this->*item.id = ids.value(item.key, this->*item.id);
}

} // namespace TVR
