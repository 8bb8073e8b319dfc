-- Reference database of the program. Table and column names are part of the interface: a column that
-- is named like a parameter key is written to that parameter when a row is chosen.

-- default_value has no declared type on purpose, so that numbers stay numbers and texts stay texts.
CREATE TABLE Parameter (
  id INTEGER PRIMARY KEY,
  name TEXT NOT NULL UNIQUE,
  default_value NOT NULL,
  tabelle TEXT NOT NULL
);

CREATE TABLE Sprache (
  id INTEGER PRIMARY KEY,
  shortcut TEXT NOT NULL UNIQUE
);

CREATE TABLE Sprachstring (
  id INTEGER NOT NULL,
  sprache_id INTEGER NOT NULL REFERENCES Sprache (id),
  string TEXT NOT NULL,
  PRIMARY KEY (id, sprache_id)
);

-- Full-load hours [h/a] with and without hot water, heat demand and hot water demand [MJ/(m²·a)].
CREATE TABLE Benutzungsstunden (
  id INTEGER PRIMARY KEY,
  building_type INTEGER NOT NULL,
  _duration_of_peak_load_warm REAL NOT NULL,
  _duration_of_peak_load_cold REAL NOT NULL,
  _qh REAL NOT NULL,
  _qww REAL NOT NULL
);

-- Heating degree days [K·d/a].
CREATE TABLE Standort (
  id INTEGER PRIMARY KEY,
  closest_location TEXT NOT NULL UNIQUE,
  _heating_degree_days REAL NOT NULL
);

-- Hydraulic conductivity [m/s] and effective porosity [%].
CREATE TABLE Grundwasserleitermaterial (
  id INTEGER PRIMARY KEY,
  _aquifer_material INTEGER NOT NULL,
  _kf_min REAL NOT NULL,
  _kf_max REAL NOT NULL,
  _porosity REAL NOT NULL
);

-- Filter diameter [mm].
CREATE TABLE Filterdurchmesser (
  id INTEGER PRIMARY KEY,
  __provided_filter_diameter REAL NOT NULL
);
