#include "simulator/mesh/FVMesh.h"

#include "simulator/SiteFixtures.h"

#include <gtest/gtest.h>

#include <cstring>
#include <sstream>

using SiteFixtures::lineOf;

namespace {

/// Three columns of widths 2, 4, 6 from x = 0 and two rows of widths 1, 3 from y = 10.
FVMesh smallMesh() {
  return FVMesh(lineOf({2.0, 4.0, 6.0}), lineOf({1.0, 3.0}, 10.0), 5.0);
}

void expectLink(const FVMeshConnection& link, const FVMeshConnection& expected) {
  EXPECT_DOUBLE_EQ(link.d1, expected.d1);
  EXPECT_DOUBLE_EQ(link.d2, expected.d2);
  EXPECT_DOUBLE_EQ(link.a, expected.a);
  EXPECT_DOUBLE_EQ(link.ax, expected.ax);
  EXPECT_DOUBLE_EQ(link.ay, expected.ay);
  EXPECT_EQ(link.i1, expected.i1);
  EXPECT_EQ(link.i2, expected.i2);
}

void expectCell(const FVMeshElement& cell, double volume, double x, double y) {
  EXPECT_DOUBLE_EQ(cell.volume, volume);
  EXPECT_DOUBLE_EQ(cell.x, x);
  EXPECT_DOUBLE_EQ(cell.y, y);
}

} // namespace

TEST(FVMesh, numbersCellsRowByRow) {
  const FVMesh mesh = smallMesh();
  EXPECT_EQ(mesh.nx, 3);
  EXPECT_EQ(mesh.ny, 2);
  EXPECT_EQ(mesh.H, 5.0);
  ASSERT_EQ(mesh.elements.size(), 6u);
  expectCell(mesh.elements[0], 10.0, 1.0, 10.5);
  expectCell(mesh.elements[2], 30.0, 9.0, 10.5);
  expectCell(mesh.elements[4], 60.0, 4.0, 12.5);
}

TEST(FVMesh, linksCellsInTheOrderOfTheirSecondCell) {
  const FVMesh mesh = smallMesh();
  ASSERT_EQ(mesh.connections.size(), 7u);
  expectLink(mesh.connections[0], {1.0, 2.0, 5.0, 5.0, 0.0, 0, 1});
  expectLink(mesh.connections[1], {2.0, 3.0, 5.0, 5.0, 0.0, 1, 2});
  expectLink(mesh.connections[2], {0.5, 1.5, 10.0, 0.0, 10.0, 0, 3});
  expectLink(mesh.connections[3], {1.0, 2.0, 15.0, 15.0, 0.0, 3, 4});
  expectLink(mesh.connections[4], {0.5, 1.5, 20.0, 0.0, 20.0, 1, 4});
  expectLink(mesh.connections[5], {2.0, 3.0, 15.0, 15.0, 0.0, 4, 5});
  expectLink(mesh.connections[6], {0.5, 1.5, 30.0, 0.0, 30.0, 2, 5});
}

TEST(FVMesh, everyRowHasABoundaryElementOnEachSide) {
  const FVMesh mesh = smallMesh();
  ASSERT_EQ(mesh.boundaryElements.size(), 4u);
  expectCell(mesh.boundaryElements[0], 10.0, 0.0, 10.5);
  expectCell(mesh.boundaryElements[1], 30.0, 0.0, 12.5);
  expectCell(mesh.boundaryElements[2], 30.0, 12.0, 10.5);
  expectCell(mesh.boundaryElements[3], 90.0, 12.0, 12.5);
}

TEST(FVMesh, boundaryLinksListTheLeftSideBeforeTheRight) {
  const FVMesh mesh = smallMesh();
  ASSERT_EQ(mesh.boundaryConnections.size(), 4u);
  expectLink(mesh.boundaryConnections[0], {1.0, 0.0, 5.0, 5.0, 0.0, 0, 0});
  expectLink(mesh.boundaryConnections[1], {1.0, 0.0, 15.0, 15.0, 0.0, 3, 1});
  expectLink(mesh.boundaryConnections[2], {3.0, 0.0, 5.0, 5.0, 0.0, 2, 2});
  expectLink(mesh.boundaryConnections[3], {3.0, 0.0, 15.0, 15.0, 0.0, 5, 3});
}

TEST(FVMesh, quadrilateralsCountCornersFromOne) {
  const FVMesh mesh = smallMesh();
  EXPECT_EQ(mesh.quads, (std::vector<FVMesh::Quad>{{1, 2, 5, 4}, {2, 3, 6, 5}}));
  EXPECT_EQ(mesh.allQuads,
            (std::vector<FVMesh::Quad>{{1, 2, 5, 4}, {2, 3, 6, 5}, {7, 1, 4, 8}, {3, 9, 10, 6}}));
}

TEST(FVMesh, findsTheElementOfAPoint) {
  const FVMesh mesh = smallMesh();
  EXPECT_EQ(mesh.findElement(0.0, 10.0), 0u);
  EXPECT_EQ(mesh.findElement(11.9, 10.5), 2u);
  EXPECT_EQ(mesh.findElement(5.0, 13.0), 4u);
}

TEST(FVMesh, pointBeforeTheFirstElementThrowsThePlainText) {
  const FVMesh mesh = smallMesh();
  try {
    mesh.findElement(-1.0, 10.5);
    FAIL() << "nothing thrown";
  } catch (const char* text) {
    EXPECT_STREQ(text, "rangerror");
  }
  EXPECT_THROW(mesh.findElement(5.0, 9.0), const char*);
  EXPECT_THROW(mesh.findElement(5.0, 14.0), const char*);
}

TEST(FVMesh, pointBesideALaterRowLandsOnTheRowBefore) {
  const FVMesh mesh = smallMesh();
  EXPECT_EQ(mesh.findElement(-1.0, 13.0), 2u);
  EXPECT_EQ(mesh.findElement(12.0, 13.0), 2u);
}

TEST(FVMesh, copiesAreIndependent) {
  FVMesh mesh = smallMesh();
  const FVMesh copy = mesh;
  mesh.elements[0].volume = -1.0;
  EXPECT_EQ(copy.elements[0].volume, 10.0);
}

TEST(FVMesh, zoneHeaderNamesTitleAndCounts) {
  std::ostringstream stream;
  smallMesh().writeZoneHeader(stream, "t=0.5 a");
  EXPECT_EQ(stream.str(), "ZONE T=\"t=0.5 a\", N=6, E=2, DATAPACKING = BLOCK, "
                          "ZONETYPE=FEQUADRILATERAL, CONNECTIVITYSHAREZONE=1\n");
}

TEST(FVMesh, coordinatesAreAllXThenAllYThenAnEmptyLine) {
  std::ostringstream stream;
  smallMesh().writeCoordinates(stream);
  EXPECT_EQ(stream.str(), "1\n4\n9\n1\n4\n9\n10.5\n10.5\n10.5\n12.5\n12.5\n12.5\n\n");
}
