#pragma once

#include <cstdint>
#include <vector>

/// A well in model coordinates, with its rates and temperature changes by demand step and the
/// temperature history that a run records. A value type: copies are independent.
class Well {
public:
  /// `id`: row of the well in the well table. `x`, `y`: position [m].
  /// `defaultRate`: volume flow for steps without an entry of their own [m3/s]; negative means
  /// production, positive injection. `defaultTemperatureChange`: likewise [K].
  Well(std::int32_t id, double x, double y, double defaultRate = 0.0,
       double defaultTemperatureChange = 0.0);
  Well(const Well&) = default;
  Well& operator=(const Well&) = default;
  virtual ~Well() = default;

  std::int32_t id() const { return id_; }
  double x() const { return x_; } ///< [m], along the regional flow
  double y() const { return y_; } ///< [m]

  /// Volume flow of a demand step [m3/s], positive into the aquifer; the default rate for a step
  /// outside the list.
  double rate(int step) const;
  /// Temperature change of the water injected in a demand step [K]; the default temperature
  /// change for a step outside the list.
  virtual double temperatureChange(int step) const;

  /// Sets the rate of a step [m3/s]. Steps between the end of the list and this one get zero.
  /// A negative step throws std::out_of_range.
  void setRate(int step, double value);
  /// Sets the temperature change of a step [K]; for the rest see setRate.
  void setTemperatureChange(int step, double value);

  /// Appends the temperature T [deg C] at time t [s] to the history.
  void record(double t, double T);
  /// Times of the history [s], in the order of recording.
  std::vector<double> times() const { return times_; }
  /// Temperatures of the history [deg C], one per entry of times().
  std::vector<double> temperatures() const { return temperatures_; }

private:
  std::int32_t id_;
  double x_;
  double y_;
  double defaultRate_;
  double defaultTemperatureChange_;
  std::vector<double> rates_;
  std::vector<double> temperatureChanges_;
  std::vector<double> times_;
  std::vector<double> temperatures_;
};
