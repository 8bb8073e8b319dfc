#pragma once

#include <QByteArray>

/// A doublet of 40 m over two years, which runs in a fraction of a second.
inline const QByteArray smallDoublet = R"([main]
simulation_time=2
max_number_of_fv_elements=200
cell_increase_factor=60
[thermic]
exchange_caprock=false
exchange_bedrock=false
[hydraulic]
groundwater_gradient=0.2
[installation]
well_model\size=2
well_model\1\0=Pump
well_model\1\1=0
well_model\1\2=0
well_model\1\3=-0.001
well_model\2\0=Return
well_model\2\1=40
well_model\2\2=0
well_model\2\3=0.001
well_model\2\4=-3
)";
