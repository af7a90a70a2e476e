#include "imagenes_lamina.h"

namespace duktores {
namespace {

constexpr Boca Rectangulo(double lx, double ly) { return {lx, ly}; }
constexpr Boca Circulo(double r) { return {2 * r, 2 * r, {r, r, r, r}}; }
constexpr Boca Elipse(double a, double b) { return {a, b, {}, true}; }
constexpr Boca Oblongo(double lx, double ly) { return {lx, ly, {ly / 2, ly / 2, ly / 2, ly / 2}}; }
// Square at the -x end, half circle at the other.
constexpr Boca MedioOblongo(double lx, double ly) { return {lx, ly, {0, 0, ly / 2, ly / 2}}; }

using enum Lugar;
using enum TipoCota;
using enum Nivel;
using enum Ancla;
constexpr auto giro = Inclinacion::giro, corte = Inclinacion::corte;

// clang-format off
// All pieces fit one layout: the base about 310 by 230, with room for its dimensions.
//                       lower mouth                    upper mouth                    H    ax  ay  alfa, beta
constexpr Pieza kCR   = {Rectangulo(310, 230),          Circulo(84),                   160, 44, 22, 20, 0, giro};
constexpr Pieza kRC   = {Circulo(128),                  Rectangulo(150, 104),          160, 28, 18, 20, 0, giro};
constexpr Pieza kElip = {Rectangulo(310, 230),          Elipse(200, 140),              160, 44, 22, 20, 0, giro};
constexpr Pieza kEsp1 = {{310, 240, {44, 60, 76, 52}},  {210, 168, {30, 44, 56, 38}},  170, 36, 20, 16, 16, corte};
constexpr Pieza kEsp2 = {Oblongo(310, 200),             Circulo(74),                   170, 36, 16, 16, 16, corte};
constexpr Pieza kEsp3 = {MedioOblongo(310, 220),        Circulo(80),                   170, 36, 18, 16, 16, corte};
constexpr Pieza kEsp4 = {{310, 230, {44, 60, 76, 52}},  Circulo(80),                   170, 40, 20, 16, 16, corte};
constexpr Pieza kEsp5 = {Rectangulo(310, 240),          {210, 168, {30, 44, 56, 38}},  170, 36, 20, 16, 16, corte};

constexpr CotaPieza kCotasCR[] = {
    {frente, horizontal, "LI",   abajo,  oeste,    abajo,  este,      -40},
    {frente, alineada,   "RS",   arriba, oeste,    arriba, centro,     38},
    {frente, vertical,   "H",    abajo,  este,     arriba, centro,    262},
    {frente, angulo,     "Alfa", arriba, centro,   arriba, centro,    118},
    {lado,   horizontal, "AI",   abajo,  norte,    abajo,  sur,       -40},
    {planta, horizontal, "AX",   abajo,  centro,   arriba, centro,   -142},
    {planta, vertical,   "AY",   abajo,  centro,   arriba, centro,    196}};

constexpr CotaPieza kCotasRC[] = {
    {frente, alineada,   "LS",   arriba, oeste,    arriba, este,       38},
    {frente, vertical,   "H",    abajo,  este,     arriba, centro,    262},
    {frente, angulo,     "Alfa", arriba, centro,   arriba, centro,    118},
    {lado,   horizontal, "AS",   arriba, esquina2, arriba, esquina1,  226},
    {planta, radio,      "RI",   abajo,  esquina1, abajo,  esquina1,  225, 40},
    {planta, horizontal, "AX",   abajo,  centro,   arriba, centro,   -142},
    {planta, vertical,   "AY",   abajo,  centro,   arriba, centro,    196}};

constexpr CotaPieza kCotasElip[] = {
    {frente, horizontal, "Li",   abajo,  oeste,    abajo,  este,      -40},
    {frente, alineada,   "eMaS", arriba, oeste,    arriba, este,       38},
    {frente, vertical,   "H",    abajo,  este,     arriba, centro,    262},
    {frente, angulo,     "Alfa", arriba, centro,   arriba, centro,    134},
    {lado,   horizontal, "Ai",   abajo,  norte,    abajo,  sur,       -40},
    {lado,   horizontal, "eMeS", arriba, norte,    arriba, sur,       226},
    {planta, horizontal, "AX",   abajo,  centro,   arriba, centro,   -142},
    {planta, vertical,   "AY",   abajo,  centro,   arriba, centro,    196}};

constexpr CotaPieza kCotasEsp1[] = {
    {frente, vertical,   "H",    abajo,  oeste,    arriba, oeste,    -200},
    {frente, horizontal, "LX1",  arriba, oeste,    arriba, este,      208},
    {frente, horizontal, "LX2",  abajo,  oeste,    abajo,  este,      -40},
    {frente, angulo,     "Alfa", arriba, oeste,    arriba, oeste,     244},
    {lado,   horizontal, "LY1",  arriba, norte,    arriba, sur,       208},
    {lado,   horizontal, "LY2",  abajo,  norte,    abajo,  sur,       -40},
    {lado,   angulo,     "Beta", arriba, norte,    arriba, norte,     198},
    {planta, radio,      "r21",  abajo,  esquina1, abajo,  esquina1,  210, 30},
    {planta, radio,      "r22",  abajo,  esquina2, abajo,  esquina2,  150, 30},
    {planta, radio,      "r23",  abajo,  esquina3, abajo,  esquina3,   30, 30},
    {planta, radio,      "r24",  abajo,  esquina4, abajo,  esquina4,  -30, 30},
    {planta, radio,      "r11",  arriba, esquina1, arriba, esquina1,  262, -26},
    {planta, radio,      "r12",  arriba, esquina2, arriba, esquina2,  140, -26},
    {planta, radio,      "r13",  arriba, esquina3, arriba, esquina3,   40, -26},
    {planta, radio,      "r14",  arriba, esquina4, arriba, esquina4,  -40, -22},
    {planta, horizontal, "AX",   abajo,  centro,   arriba, centro,   -142},
    {planta, vertical,   "AY",   abajo,  centro,   arriba, centro,    196}};

constexpr CotaPieza kCotasEsp2[] = {
    {frente, vertical,   "H",    abajo,  oeste,    arriba, oeste,    -200},
    {frente, horizontal, "Lx",   abajo,  oeste,    abajo,  este,      -40},
    {frente, angulo,     "Alfa", arriba, oeste,    arriba, oeste,     200},
    {lado,   horizontal, "Ly",   abajo,  norte,    abajo,  sur,       -40},
    {lado,   angulo,     "Beta", arriba, norte,    arriba, norte,     176},
    {planta, radio,      "r",    arriba, esquina2, arriba, esquina2,  145, -36},
    {planta, horizontal, "Ax",   abajo,  centro,   arriba, centro,   -142},
    {planta, vertical,   "Ay",   abajo,  centro,   arriba, centro,    196}};

constexpr CotaPieza kCotasEsp3[] = {
    {frente, vertical,   "H",    abajo,  oeste,    arriba, oeste,    -200},
    {frente, horizontal, "LX",   abajo,  oeste,    abajo,  este,      -40},
    {frente, angulo,     "Alfa", arriba, oeste,    arriba, oeste,     208},
    {lado,   horizontal, "LY",   abajo,  norte,    abajo,  sur,       -40},
    {lado,   angulo,     "Beta", arriba, norte,    arriba, norte,     188},
    {planta, radio,      "R",    arriba, esquina2, arriba, esquina2,  145, -36},
    {planta, horizontal, "AX",   abajo,  centro,   arriba, centro,   -142},
    {planta, vertical,   "AY",   abajo,  centro,   arriba, centro,    196}};

constexpr CotaPieza kCotasEsp4[] = {
    {frente, vertical,   "H",    abajo,  oeste,    arriba, oeste,    -200},
    {frente, horizontal, "Lx",   abajo,  oeste,    abajo,  este,      -40},
    {frente, angulo,     "Alfa", arriba, oeste,    arriba, oeste,     212},
    {lado,   horizontal, "Ly",   abajo,  norte,    abajo,  sur,       -40},
    {lado,   angulo,     "Beta", arriba, norte,    arriba, norte,     190},
    {planta, radio,      "r21",  abajo,  esquina1, abajo,  esquina1,  210, 30},
    {planta, radio,      "r22",  abajo,  esquina2, abajo,  esquina2,  150, 30},
    {planta, radio,      "r23",  abajo,  esquina3, abajo,  esquina3,   30, 30},
    {planta, radio,      "r24",  abajo,  esquina4, abajo,  esquina4,  -30, 30},
    {planta, radio,      "r1",   arriba, esquina2, arriba, esquina2,  145, -36},
    {planta, horizontal, "Ax",   abajo,  centro,   arriba, centro,   -142},
    {planta, vertical,   "Ay",   abajo,  centro,   arriba, centro,    196}};

constexpr CotaPieza kCotasEsp5[] = {
    {frente, vertical,   "H",    abajo,  oeste,    arriba, oeste,    -200},
    {frente, horizontal, "Lx1",  arriba, oeste,    arriba, este,      208},
    {frente, horizontal, "Lx2",  abajo,  oeste,    abajo,  este,      -40},
    {frente, angulo,     "Alfa", arriba, oeste,    arriba, oeste,     244},
    {lado,   horizontal, "Ly1",  arriba, norte,    arriba, sur,       208},
    {lado,   horizontal, "Ly2",  abajo,  norte,    abajo,  sur,       -40},
    {lado,   angulo,     "Beta", arriba, norte,    arriba, norte,     198},
    {planta, radio,      "r11",  arriba, esquina1, arriba, esquina1,  262, -26},
    {planta, radio,      "r12",  arriba, esquina2, arriba, esquina2,  140, -26},
    {planta, radio,      "r13",  arriba, esquina3, arriba, esquina3,   40, -26},
    {planta, radio,      "r14",  arriba, esquina4, arriba, esquina4,  -40, -22},
    {planta, horizontal, "Ax",   abajo,  centro,   arriba, centro,   -142},
    {planta, vertical,   "Ay",   abajo,  centro,   arriba, centro,    196}};

constexpr Lamina kLaminas[] = {
    {"TransBasRect.bmp", kCR,   kCotasCR},
    {"TransBasCirc.bmp", kRC,   kCotasRC},
    {"Transespe1.bmp",   kEsp1, kCotasEsp1},
    {"Transespe2.bmp",   kEsp2, kCotasEsp2},
    {"Transespe3.bmp",   kEsp3, kCotasEsp3},
    {"Transespe4.bmp",   kEsp4, kCotasEsp4},
    {"Transespe5.bmp",   kEsp5, kCotasEsp5},
    {"TransBoElip.bmp",  kElip, kCotasElip}};

constexpr Figura kFigurasDuktores[] = {
    {&kRC, {632, 372}, 1.08},
    {&kCR, {240, 424}, 1.08}};
constexpr Figura kFigurasEspeciales[] = {
    {&kEsp3, {200, 186}, 0.82},
    {&kEsp2, {646, 186}, 0.82},
    {&kEsp1, {420, 380}, 0.82},
    {&kEsp5, {200, 578}, 0.82},
    {&kEsp4, {646, 578}, 0.82}};
constexpr Figura kFigurasElip[] = {
    {&kElip, {420, 420}, 1.55}};

constexpr Portada kPortadas[] = {
    {"PresentDuktores.bmp",        kFigurasDuktores},
    {"PresentTransEspeciales.bmp", kFigurasEspeciales},
    {"PresentTransElip.bmp",       kFigurasElip}};
// clang-format on

}  // namespace

std::span<const Lamina> Laminas() { return kLaminas; }
std::span<const Portada> Portadas() { return kPortadas; }

}  // namespace duktores
