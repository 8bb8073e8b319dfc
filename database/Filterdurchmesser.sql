-- Filter diameters in the order in which the well design tries them, from large to small: common
-- nominal widths of well pipes (DIN 4922, steel; DIN 4925, PVC-U).
INSERT INTO Filterdurchmesser (id, __provided_filter_diameter) VALUES
(1, 600.0),
(2, 500.0),
(3, 400.0),
(4, 350.0),
(5, 300.0),
(6, 250.0),
(7, 200.0),
(8, 150.0),
(9, 125.0);
