#include "imagenes_lamina.h"

namespace duktores {
namespace {

constexpr Boca Rectangulo(double lx, double ly) { return {lx, ly, {}, false}; }
constexpr Boca Circulo(double r) { return {2 * r, 2 * r, {r, r, r, r}, false}; }
constexpr Boca Elipse(double a, double b) { return {a, b, {}, true}; }
constexpr Boca Oblongo(double lx, double ly) { return {lx, ly, {ly / 2, ly / 2, ly / 2, ly / 2}, false}; }
// Square at the -x end, half circle at the other.
constexpr Boca MedioOblongo(double lx, double ly) { return {lx, ly, {0, 0, ly / 2, ly / 2}, false}; }

using enum Lugar;
using enum TipoCota;
using enum Nivel;
using enum Ancla;
constexpr auto giro = Inclinacion::giro, corte = Inclinacion::corte;

// clang-format off
// All pieces fit one layout: the base about 310 by 230, with room for its dimensions.
//                       lower mouth                               upper mouth                               H    ax  ay  alfa beta
constexpr Pieza kCR   = {Rectangulo(310, 230),                     Circulo(84),                              160, 44, 22, 16, 0, giro};
constexpr Pieza kRC   = {Circulo(124),                             Rectangulo(190, 124),                     160, 44, 24, 16, 0, giro};
constexpr Pieza kElip = {Rectangulo(310, 230),                     Elipse(196, 128),                         160, 44, 24, 16, 0, giro};
constexpr Pieza kEsp1 = {{310, 230, {44, 60, 76, 52}, false},      {210, 160, {30, 44, 56, 38}, false},      170, 36, 24, 14, 14, corte};
constexpr Pieza kEsp2 = {Oblongo(310, 200),                        Circulo(80),                              170, 36, 14, 14, 14, corte};
constexpr Pieza kEsp3 = {MedioOblongo(310, 220),                   Circulo(84),                              170, 36, 18, 14, 14, corte};
constexpr Pieza kEsp4 = {{310, 230, {44, 60, 76, 52}, false},      Circulo(86),                              170, 40, 22, 14, 14, corte};
constexpr Pieza kEsp5 = {Rectangulo(310, 230),                     {210, 160, {30, 44, 56, 38}, false},      170, 36, 24, 14, 14, corte};

constexpr CotaPieza kCotasCR[] = {
    {frente, horizontal, "LI",   abajo,  oeste,    abajo,  este,      -40},
    {frente, alineada,   "RS",   arriba, oeste,    arriba, centro,     38},
    {frente, vertical,   "H",    abajo,  este,     arriba, centro,    252},
    {frente, angulo,     "Alfa", arriba, centro,   arriba, centro,    118},
    {lado,   horizontal, "AI",   abajo,  norte,    abajo,  sur,       -40},
    {planta, horizontal, "AX",   abajo,  centro,   arriba, centro,   -142},
    {planta, vertical,   "AY",   abajo,  centro,   arriba, centro,    196}};

constexpr CotaPieza kCotasRC[] = {
    {frente, alineada,   "LS",   arriba, oeste,    arriba, este,       38},
    {frente, vertical,   "H",    abajo,  este,     arriba, centro,    252},
    {frente, angulo,     "Alfa", arriba, centro,   arriba, centro,    118},
    {lado,   horizontal, "AS",   arriba, norte,    arriba, sur,       226},
    {planta, radio,      "RI",   abajo,  esquina1, abajo,  esquina1,  225, 40},
    {planta, horizontal, "AX",   abajo,  centro,   arriba, centro,   -142},
    {planta, vertical,   "AY",   abajo,  centro,   arriba, centro,    196}};

constexpr CotaPieza kCotasElip[] = {
    {frente, horizontal, "Li",   abajo,  oeste,    abajo,  este,      -40},
    {frente, alineada,   "eMaS", arriba, oeste,    arriba, este,       38},
    {frente, vertical,   "H",    abajo,  este,     arriba, centro,    252},
    {frente, angulo,     "Alfa", arriba, centro,   arriba, centro,    124},
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
    {lado,   angulo,     "Beta", arriba, norte,    arriba, norte,     194},
    {planta, radio,      "r21",  abajo,  esquina1, abajo,  esquina1,  210, 30},
    {planta, radio,      "r22",  abajo,  esquina2, abajo,  esquina2,  150, 30},
    {planta, radio,      "r23",  abajo,  esquina3, abajo,  esquina3,   30, 30},
    {planta, radio,      "r24",  abajo,  esquina4, abajo,  esquina4,  -30, 30},
    {planta, radio,      "r11",  arriba, esquina1, arriba, esquina1,  225, -26},
    {planta, radio,      "r12",  arriba, esquina2, arriba, esquina2,  140, -26},
    {planta, radio,      "r13",  arriba, esquina3, arriba, esquina3,   40, -26},
    {planta, radio,      "r14",  arriba, esquina4, arriba, esquina4,  -30, -26},
    {planta, horizontal, "AX",   abajo,  centro,   arriba, centro,   -142},
    {planta, vertical,   "AY",   abajo,  centro,   arriba, centro,    196}};

constexpr CotaPieza kCotasEsp2[] = {
    {frente, vertical,   "H",    abajo,  oeste,    arriba, oeste,    -200},
    {frente, horizontal, "Lx",   abajo,  oeste,    abajo,  este,      -40},
    {frente, angulo,     "Alfa", arriba, oeste,    arriba, oeste,     200},
    {lado,   horizontal, "Ly",   abajo,  norte,    abajo,  sur,       -40},
    {lado,   angulo,     "Beta", arriba, norte,    arriba, norte,     194},
    {planta, radio,      "r",    arriba, esquina2, arriba, esquina2,  145, -46},
    {planta, horizontal, "Ax",   abajo,  centro,   arriba, centro,   -142},
    {planta, vertical,   "Ay",   abajo,  centro,   arriba, centro,    196}};

constexpr CotaPieza kCotasEsp3[] = {
    {frente, vertical,   "H",    abajo,  oeste,    arriba, oeste,    -200},
    {frente, horizontal, "LX",   abajo,  oeste,    abajo,  este,      -40},
    {frente, angulo,     "Alfa", arriba, oeste,    arriba, oeste,     208},
    {lado,   horizontal, "LY",   abajo,  norte,    abajo,  sur,       -40},
    {lado,   angulo,     "Beta", arriba, norte,    arriba, norte,     200},
    {planta, radio,      "R",    arriba, esquina2, arriba, esquina2,  145, -46},
    {planta, horizontal, "AX",   abajo,  centro,   arriba, centro,   -142},
    {planta, vertical,   "AY",   abajo,  centro,   arriba, centro,    196}};

constexpr CotaPieza kCotasEsp4[] = {
    {frente, vertical,   "H",    abajo,  oeste,    arriba, oeste,    -200},
    {frente, horizontal, "Lx",   abajo,  oeste,    abajo,  este,      -40},
    {frente, angulo,     "Alfa", arriba, oeste,    arriba, oeste,     212},
    {lado,   horizontal, "Ly",   abajo,  norte,    abajo,  sur,       -40},
    {lado,   angulo,     "Beta", arriba, norte,    arriba, norte,     204},
    {planta, radio,      "r21",  abajo,  esquina1, abajo,  esquina1,  210, 30},
    {planta, radio,      "r22",  abajo,  esquina2, abajo,  esquina2,  150, 30},
    {planta, radio,      "r23",  abajo,  esquina3, abajo,  esquina3,   30, 30},
    {planta, radio,      "r24",  abajo,  esquina4, abajo,  esquina4,  -30, 30},
    {planta, radio,      "r1",   arriba, esquina2, arriba, esquina2,  145, -46},
    {planta, horizontal, "Ax",   abajo,  centro,   arriba, centro,   -142},
    {planta, vertical,   "Ay",   abajo,  centro,   arriba, centro,    196}};

constexpr CotaPieza kCotasEsp5[] = {
    {frente, vertical,   "H",    abajo,  oeste,    arriba, oeste,    -200},
    {frente, horizontal, "Lx1",  arriba, oeste,    arriba, este,      208},
    {frente, horizontal, "Lx2",  abajo,  oeste,    abajo,  este,      -40},
    {frente, angulo,     "Alfa", arriba, oeste,    arriba, oeste,     244},
    {lado,   horizontal, "Ly1",  arriba, norte,    arriba, sur,       208},
    {lado,   horizontal, "Ly2",  abajo,  norte,    abajo,  sur,       -40},
    {lado,   angulo,     "Beta", arriba, norte,    arriba, norte,     194},
    {planta, radio,      "r11",  arriba, esquina1, arriba, esquina1,  225, -26},
    {planta, radio,      "r12",  arriba, esquina2, arriba, esquina2,  140, -26},
    {planta, radio,      "r13",  arriba, esquina3, arriba, esquina3,   40, -26},
    {planta, radio,      "r14",  arriba, esquina4, arriba, esquina4,  -30, -26},
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
    {&kRC, {560, 330}, 1.15},
    {&kCR, {270, 500}, 1.25}};
constexpr Figura kFigurasEspeciales[] = {
    {&kEsp3, {220, 220}, 0.72},
    {&kEsp2, {600, 220}, 0.72},
    {&kEsp1, {420, 370}, 0.72},
    {&kEsp5, {220, 540}, 0.72},
    {&kEsp4, {620, 540}, 0.72}};
constexpr Figura kFigurasElip[] = {
    {&kElip, {400, 470}, 1.9}};

constexpr Portada kPortadas[] = {
    {"PresentDuktores.bmp",        kFigurasDuktores},
    {"PresentTransEspeciales.bmp", kFigurasEspeciales},
    {"PresentTransElip.bmp",       kFigurasElip}};
// clang-format on

}  // namespace

std::span<const Lamina> Laminas() { return kLaminas; }
std::span<const Portada> Portadas() { return kPortadas; }

}  // namespace duktores
