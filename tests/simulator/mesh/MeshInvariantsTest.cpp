#include "simulator/SiteFixtures.h"
#include "simulator/mesh/MeshGeneration.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <set>

namespace {

constexpr double minimumSize = 0.5;

/// A random field of one to eight wells with the mesh that belongs to it.
class RandomField {
public:
  explicit RandomField(unsigned seed) : random_(seed) {
    const int count = std::uniform_int_distribution<int>(1, 8)(random_);
    for (int i = 0; i < count; ++i)
      wells.emplace_back(i, between(-200.0, 200.0), between(-100.0, 100.0));
    amin = between(20.0, 3000.0);
    bmin = between(20.0, 300.0);
    std::vector<Well*> pointers;
    for (Well& well : wells)
      pointers.push_back(&well);
    mesh = makeWellDiscretisation(H, amin, bmin, pointers, minimumSize, between(2.0, 50.0),
                                  between(1.01, 2.0), 20000, seed % 2 == 0);
  }

  std::vector<double> sorted(double (Well::*coordinate)() const) const {
    std::set<double> values;
    for (const Well& well : wells)
      values.insert((well.*coordinate)());
    return {values.begin(), values.end()};
  }

  static constexpr double H = 8.0;
  std::vector<Well> wells;
  double amin;
  double bmin;
  std::unique_ptr<FVMesh> mesh;

private:
  double between(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random_);
  }
  std::mt19937 random_;
};

void expectContiguous(const FVGridLine& line) {
  for (std::size_t i = 0; i < line.count(); ++i)
    ASSERT_GT(line.width(i), 0.0);
  for (std::size_t i = 1; i < line.count(); ++i)
    ASSERT_NEAR(line.start(i), line.start(i - 1) + line.width(i - 1), 1e-9);
}

void expectSpan(const FVGridLine& line, double low, double high) {
  EXPECT_EQ(line.start(0), low);
  EXPECT_NEAR(line.start(line.count() - 1) + line.width(line.count() - 1), high, 1e-9);
}

/// Wells with a free distance to the next one sit in the centre of a cell of the minimum size.
int expectCentred(const FVGridLine& line, const std::vector<double>& wells) {
  int centred = 0;
  for (std::size_t i = 0; i < wells.size(); ++i) {
    if (i + 1 < wells.size() && wells[i + 1] - wells[i] <= 3 * minimumSize)
      continue;
    const auto cell = static_cast<std::size_t>(line.find(wells[i]));
    EXPECT_NEAR(line.centre(cell), wells[i], 1e-9);
    EXPECT_NEAR(line.width(cell), minimumSize, 1e-9);
    ++centred;
  }
  return centred;
}

class MeshInvariants : public testing::Test {
protected:
  template <class Check>
  static void forEachField(Check check) {
    for (unsigned seed = 1; seed <= 300; ++seed) {
      SCOPED_TRACE(testing::Message() << "seed " << seed);
      check(RandomField(seed));
      if (HasFatalFailure())
        return;
    }
  }
};

} // namespace

TEST_F(MeshInvariants, cellsArePositiveAndJoin) {
  forEachField([](const RandomField& field) {
    expectContiguous(field.mesh->xLine);
    expectContiguous(field.mesh->yLine);
  });
}

TEST_F(MeshInvariants, axesRunExactlyFromExtentToExtent) {
  forEachField([](const RandomField& field) {
    const std::vector<double> x = field.sorted(&Well::x);
    const std::vector<double> y = field.sorted(&Well::y);
    expectSpan(field.mesh->xLine, x.front() - field.bmin, x.back() + field.amin);
    expectSpan(field.mesh->yLine, y.front() - field.bmin, y.back() + field.bmin);
  });
}

TEST_F(MeshInvariants, wellsApartFromOthersSitInTheCentreOfASmallestCell) {
  int centred = 0;
  forEachField([&](const RandomField& field) {
    centred += expectCentred(field.mesh->xLine, field.sorted(&Well::x));
    centred += expectCentred(field.mesh->yLine, field.sorted(&Well::y));
  });
  EXPECT_GT(centred, 1000);
}

TEST_F(MeshInvariants, volumesAddUpToTheBox) {
  forEachField([](const RandomField& field) {
    const FVMesh& mesh = *field.mesh;
    double volume = 0.0;
    for (const FVMeshElement& cell : mesh.elements)
      volume += cell.volume;
    const std::vector<double> x = field.sorted(&Well::x);
    const std::vector<double> y = field.sorted(&Well::y);
    const double box = (x.back() - x.front() + field.amin + field.bmin) *
                       (y.back() - y.front() + 2 * field.bmin) * RandomField::H;
    EXPECT_NEAR(volume / box, 1.0, 1e-10);
  });
}

TEST_F(MeshInvariants, linksSpanTheCentresAndStayInOneRowOfTheBand) {
  forEachField([](const RandomField& field) {
    const FVMesh& mesh = *field.mesh;
    ASSERT_EQ(static_cast<int>(mesh.connections.size()),
              (mesh.nx - 1) * mesh.ny + mesh.nx * (mesh.ny - 1));
    ASSERT_EQ(static_cast<int>(mesh.boundaryConnections.size()), 2 * mesh.ny);
    for (const FVMeshConnection& link : mesh.connections) {
      const FVMeshElement& e1 = mesh.elements[static_cast<std::size_t>(link.i1)];
      const FVMeshElement& e2 = mesh.elements[static_cast<std::size_t>(link.i2)];
      ASSERT_NEAR(e2.x - e1.x + e2.y - e1.y, link.d1 + link.d2, 1e-9);
      ASSERT_EQ(link.ax + link.ay, link.a);
      ASSERT_EQ(link.i2 - link.i1, link.ax > 0.0 ? 1 : mesh.nx);
    }
  });
}

TEST_F(MeshInvariants, facesOfEveryCellBalanceAlongBothAxes) {
  forEachField([](const RandomField& field) {
    const FVMesh& mesh = *field.mesh;
    std::vector<double> x(mesh.elements.size(), 0.0);
    for (const FVMeshConnection& link : mesh.connections) {
      x[static_cast<std::size_t>(link.i1)] += link.ax;
      x[static_cast<std::size_t>(link.i2)] -= link.ax;
    }
    for (const FVMeshConnection& link : mesh.boundaryConnections)
      x[static_cast<std::size_t>(link.i1)] += link.i2 < mesh.ny ? -link.ax : link.ax;
    for (const double sum : x)
      ASSERT_EQ(sum, 0.0);
  });
}

TEST_F(MeshInvariants, everyWellIsFoundInTheMesh) {
  forEachField([](const RandomField& field) {
    for (const Well& well : field.wells) {
      const FVMeshElement& cell = field.mesh->elements[field.mesh->findElement(well.x(), well.y())];
      ASSERT_LT(std::abs(cell.x - well.x()), 2 * minimumSize);
      ASSERT_LT(std::abs(cell.y - well.y()), 2 * minimumSize);
    }
  });
}
