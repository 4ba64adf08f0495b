/* The n-body simulation of the Jovian planets: prints the energy before and
   after N steps. Usage: nbody [N] */
#include <math.h>
#include <stdio.h>
#include <stdlib.h>

struct body {
   double x, y, z, vx, vy, vz, mass;
};

static void advance(struct body *bodies, int n, double dt)
{
   int i, j;
   double dx, dy, dz, d2, mag;
   for (i = 0; i < n; i++)
      for (j = i + 1; j < n; j++) {
         dx = bodies[i].x - bodies[j].x;
         dy = bodies[i].y - bodies[j].y;
         dz = bodies[i].z - bodies[j].z;
         d2 = dx * dx + dy * dy + dz * dz;
         mag = dt / (d2 * sqrt(d2));
         bodies[i].vx = bodies[i].vx - dx * bodies[j].mass * mag;
         bodies[i].vy = bodies[i].vy - dy * bodies[j].mass * mag;
         bodies[i].vz = bodies[i].vz - dz * bodies[j].mass * mag;
         bodies[j].vx = bodies[j].vx + dx * bodies[i].mass * mag;
         bodies[j].vy = bodies[j].vy + dy * bodies[i].mass * mag;
         bodies[j].vz = bodies[j].vz + dz * bodies[i].mass * mag;
      }
   for (i = 0; i < n; i++) {
      bodies[i].x = bodies[i].x + dt * bodies[i].vx;
      bodies[i].y = bodies[i].y + dt * bodies[i].vy;
      bodies[i].z = bodies[i].z + dt * bodies[i].vz;
   }
}

static double energy(const struct body *bodies, int n)
{
   int i, j;
   double dx, dy, dz, e = 0.0;
   for (i = 0; i < n; i++) {
      e = e + 0.5 * bodies[i].mass * (bodies[i].vx * bodies[i].vx + bodies[i].vy * bodies[i].vy + bodies[i].vz * bodies[i].vz);
      for (j = i + 1; j < n; j++) {
         dx = bodies[i].x - bodies[j].x;
         dy = bodies[i].y - bodies[j].y;
         dz = bodies[i].z - bodies[j].z;
         e = e - bodies[i].mass * bodies[j].mass / sqrt(dx * dx + dy * dy + dz * dz);
      }
   }
   return e;
}

int main(int argc, char **argv)
{
   const double pi = 3.141592653589793;
   const double solar_mass = 4.0 * pi * pi;
   const double days = 365.24;
   struct body bodies[5] = {
      /* the sun */
      {0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0},
      /* jupiter */
      {4.84143144246472090e+00, -1.16032004402742839e+00, -1.03622044471123109e-01,
       1.66007664274403694e-03, 7.69901118419740425e-03, -6.90460016972063023e-05,
       9.54791938424326609e-04},
      /* saturn */
      {8.34336671824457987e+00, 4.12479856412430479e+00, -4.03523417114321381e-01,
       -2.76742510726862411e-03, 4.99852801234917238e-03, 2.30417297573763929e-05,
       2.85885980666130812e-04},
      /* uranus */
      {1.28943695621391310e+01, -1.51111514016986312e+01, -2.23307578892655734e-01,
       2.96460137564761618e-03, 2.37847173959480950e-03, -2.96589568540237556e-05,
       4.36624404335156298e-05},
      /* neptune */
      {1.53796971148509165e+01, -2.59193146099879641e+01, 1.79258772950371181e-01,
       2.68067772490389322e-03, 1.62824170038242295e-03, -9.51592254519715870e-05,
       5.15138902046611451e-05}};
   int i, steps = argc > 1 ? atoi(argv[1]) : 5000000;
   double px = 0.0, py = 0.0, pz = 0.0;
   bodies[0].mass = solar_mass;
   for (i = 1; i < 5; i++) {
      bodies[i].vx = bodies[i].vx * days;
      bodies[i].vy = bodies[i].vy * days;
      bodies[i].vz = bodies[i].vz * days;
      bodies[i].mass = bodies[i].mass * solar_mass;
   }
   /* offset the momentum so that the centre of mass stays put */
   for (i = 0; i < 5; i++) {
      px = px + bodies[i].vx * bodies[i].mass;
      py = py + bodies[i].vy * bodies[i].mass;
      pz = pz + bodies[i].vz * bodies[i].mass;
   }
   bodies[0].vx = -px / solar_mass;
   bodies[0].vy = -py / solar_mass;
   bodies[0].vz = -pz / solar_mass;
   printf("%.9f\n", energy(bodies, 5));
   for (i = 0; i < steps; i++)
      advance(bodies, 5, 0.01);
   printf("%.9f\n", energy(bodies, 5));
   return 0;
}
