-- Checks the contents of a built database; run with -bail, it ends at the first violated rule.
CREATE TEMP TABLE checked (rule TEXT PRIMARY KEY, violations INTEGER CHECK (violations = 0));
CREATE TEMP TABLE required (name TEXT PRIMARY KEY, tabelle TEXT);
INSERT INTO required VALUES
('building_type', 'Benutzungsstunden'),
('_duration_of_peak_load_warm', 'Benutzungsstunden'),
('_duration_of_peak_load_cold', 'Benutzungsstunden'),
('_qh', 'Benutzungsstunden'),
('_qww', 'Benutzungsstunden'),
('closest_location', 'Standort'),
('_heating_degree_days', 'Standort'),
('_kf_min', 'Grundwasserleitermaterial'),
('_kf_max', 'Grundwasserleitermaterial'),
('_porosity', 'Grundwasserleitermaterial'),
('__provided_filter_diameter', 'Filterdurchmesser');

INSERT INTO checked SELECT 'a default for every parameter that has one', abs(count(*) - 167) FROM Parameter;
INSERT INTO checked SELECT 'parameter ids lie between 0 and 172', count(*) FROM Parameter
  WHERE id NOT BETWEEN 0 AND 172;
INSERT INTO checked SELECT 'parameter names are not empty', count(*) FROM Parameter
  WHERE trim(name) = '';
INSERT INTO checked SELECT 'parameter names are unique', count(*) - count(DISTINCT name)
  FROM Parameter;
INSERT INTO checked SELECT 'text parameters are empty', count(*) FROM Parameter
  WHERE (id BETWEEN 137 AND 143 OR id BETWEEN 151 AND 155) AND default_value <> '0.0';
INSERT INTO checked SELECT 'all other defaults but texts are numbers', count(*) FROM Parameter
  WHERE typeof(default_value) NOT IN ('integer', 'real')
    AND id NOT IN (0, 95, 122, 137, 138, 139, 140, 141, 142, 143, 150, 151, 152, 153, 154, 155, 156, 157, 161, 162, 163);
INSERT INTO checked SELECT 'reference tables of parameters', count(*) FROM required r
  WHERE NOT EXISTS (SELECT * FROM Parameter p WHERE p.name = r.name AND p.tabelle = r.tabelle);
INSERT INTO checked SELECT 'no other parameter has a reference table', count(*) FROM Parameter p
  WHERE p.tabelle <> '' AND NOT EXISTS (SELECT * FROM required r WHERE r.name = p.name);
INSERT INTO checked SELECT 'columns named like a parameter belong to the table of the parameter',
  count(*) FROM sqlite_schema t, pragma_table_info(t.name) c, Parameter p
  WHERE t.type = 'table' AND t.name NOT IN ('Parameter', 'Sprache', 'Sprachstring')
    AND c.name = p.name AND p.tabelle <> t.name;
INSERT INTO checked SELECT 'every reference column exists', count(*) FROM required r
  WHERE NOT EXISTS (SELECT * FROM pragma_table_info(r.tabelle) c WHERE c.name = r.name);

INSERT INTO checked SELECT 'three languages',
  3 - (SELECT count(*) FROM Sprache WHERE shortcut IN ('de', 'en', 'fr'))
  + (SELECT count(*) FROM Sprache WHERE shortcut NOT IN ('de', 'en', 'fr'));
INSERT INTO checked SELECT 'every text in every language', count(*) FROM
  (SELECT DISTINCT id FROM Sprachstring) s, Sprache l
  WHERE NOT EXISTS (SELECT * FROM Sprachstring t WHERE t.id = s.id AND t.sprache_id = l.id
                    AND trim(t.string) <> '');
INSERT INTO checked SELECT 'every text belongs to a language', count(*) FROM Sprachstring
  WHERE sprache_id NOT IN (SELECT id FROM Sprache);
INSERT INTO checked SELECT 'every building type has a name', count(*) FROM Benutzungsstunden
  WHERE building_type NOT IN (SELECT id FROM Sprachstring);
INSERT INTO checked SELECT 'every material has a name', count(*) FROM Grundwasserleitermaterial
  WHERE _aquifer_material NOT IN (SELECT id FROM Sprachstring);
INSERT INTO checked SELECT 'every text is the name of something', count(*) FROM Sprachstring
  WHERE id NOT IN (SELECT building_type FROM Benutzungsstunden
                   UNION SELECT _aquifer_material FROM Grundwasserleitermaterial);

INSERT INTO checked SELECT 'at least eight building types', count(*) < 8 FROM Benutzungsstunden;
INSERT INTO checked SELECT 'building types are numbered from 1', min(id) <> 1 OR max(id) <> count(*)
  FROM Benutzungsstunden;
INSERT INTO checked SELECT 'hot water lengthens the full-load hours of a year', count(*)
  FROM Benutzungsstunden
  WHERE NOT (_duration_of_peak_load_cold BETWEEN 1000 AND _duration_of_peak_load_warm
             AND _duration_of_peak_load_warm <= 8760);
INSERT INTO checked SELECT 'demands of buildings are plausible', count(*) FROM Benutzungsstunden
  WHERE _qh NOT BETWEEN 30 AND 1000 OR _qww NOT BETWEEN 0 AND 500;

INSERT INTO checked SELECT 'at least twenty locations', count(*) < 20 FROM Standort;
INSERT INTO checked SELECT 'locations are numbered from 1', min(id) <> 1 OR max(id) <> count(*)
  FROM Standort;
INSERT INTO checked SELECT 'degree days are plausible', count(*) FROM Standort
  WHERE _heating_degree_days NOT BETWEEN 2000 AND 8000;

INSERT INTO checked SELECT 'at least eight materials', count(*) < 8 FROM Grundwasserleitermaterial;
INSERT INTO checked SELECT 'materials are numbered from 1', min(id) <> 1 OR max(id) <> count(*)
  FROM Grundwasserleitermaterial;
INSERT INTO checked SELECT 'conductivities are a range above 0', count(*)
  FROM Grundwasserleitermaterial WHERE NOT (0 < _kf_min AND _kf_min < _kf_max AND _kf_max <= 1);
INSERT INTO checked SELECT 'porosities are percentages of a sediment', count(*)
  FROM Grundwasserleitermaterial WHERE _porosity NOT BETWEEN 1 AND 60;

INSERT INTO checked SELECT 'nine filters numbered from 1',
  count(*) <> 9 OR min(id) <> 1 OR max(id) <> 9 FROM Filterdurchmesser;
INSERT INTO checked SELECT 'filters run from large to small', count(*)
  FROM Filterdurchmesser a, Filterdurchmesser b
  WHERE b.id = a.id + 1 AND b.__provided_filter_diameter >= a.__provided_filter_diameter;
INSERT INTO checked SELECT 'filters have a diameter', count(*) FROM Filterdurchmesser
  WHERE __provided_filter_diameter <= 0;

SELECT count(*) || ' rules hold' FROM checked;
