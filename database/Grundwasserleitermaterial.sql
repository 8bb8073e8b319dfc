-- Aquifer materials from fine to coarse. Rounded typical values in the range of Hölting & Coldewey,
-- Hydrogeologie (7th edition, 2009), for conductivity and effective porosity; the latter is largest
-- in coarse sand, since fines and a wide grading both reduce it.
INSERT INTO Grundwasserleitermaterial (id, _aquifer_material, _kf_min, _kf_max, _porosity) VALUES
(1, 101, 1e-8, 1e-6, 3.0),
(2, 102, 1e-7, 1e-5, 7.0),
(3, 103, 1e-5, 1e-4, 12.0),
(4, 104, 1e-4, 1e-3, 18.0),
(5, 105, 5e-4, 5e-3, 22.0),
(6, 106, 1e-5, 1e-3, 12.0),
(7, 107, 1e-3, 1e-2, 20.0),
(8, 108, 2e-3, 2e-2, 21.0),
(9, 109, 1e-2, 1e-1, 20.0);
