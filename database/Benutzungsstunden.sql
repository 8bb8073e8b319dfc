-- Building types. Heat and hot water demand: rounded typical values in the range of SIA 380/1
-- (Swiss Society of Engineers and Architects, 2009) for new buildings and of the existing stock for
-- old ones. Full-load hours: rounded values in the range of SIA 384/6 (2010) and VDI 4640-2 (2001).
INSERT INTO Benutzungsstunden
  (id, building_type, _duration_of_peak_load_warm, _duration_of_peak_load_cold, _qh, _qww) VALUES
(1, 1, 2200.0, 1900.0, 190.0, 50.0),
(2, 2, 2300.0, 2000.0, 480.0, 50.0),
(3, 3, 2300.0, 2000.0, 150.0, 75.0),
(4, 4, 2400.0, 2100.0, 400.0, 75.0),
(5, 5, 1900.0, 1800.0, 160.0, 25.0),
(6, 6, 1900.0, 1800.0, 170.0, 25.0),
(7, 7, 1900.0, 1800.0, 140.0, 25.0),
(8, 8, 2600.0, 1900.0, 180.0, 200.0),
(9, 9, 2600.0, 2100.0, 200.0, 150.0),
(10, 10, 2700.0, 2300.0, 220.0, 100.0),
(11, 11, 1900.0, 1700.0, 180.0, 25.0),
(12, 12, 2300.0, 1700.0, 190.0, 150.0);
