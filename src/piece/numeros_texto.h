#pragma once
// The numbers of the texts that reach a user, by name. The texts themselves, in seven languages, are state/textos.h's.

namespace duktores::texto {

inline constexpr int kContinuar = 1, kSalir = 2, kDuktores = 3;
inline constexpr int kUnaPieza = 13, kDosPiezas = 14, kFaltanDatos = 15, kAceptar = 17, kCancelar = 18;
inline constexpr int kDivisiones = 19, kDatoErroneo = 20, kDatoErroneoEsp3 = 40, kGrados = 66;
inline constexpr int kAlfaChino = 67, kBetaChino = 68;

// The names of the pieces, which are their dialogs' titles too, and of their groups.
inline constexpr int kTransCR = 11, kTransRC = 12, kTransElip = 50;
inline constexpr int kTransEsp1 = 42, kTransEsp2 = 43, kTransEsp3 = 44, kTransEsp4 = 45, kTransEsp5 = 46;
inline constexpr int kGrupoEspeciales = 41, kEspeciales = 47, kGrupoElipticas = 49;

// The title block.
inline constexpr int kFibraMedia = 21, kFibraInterior = 22, kFibraExterior = 23;
inline constexpr int kFibra = 24, kEspesor = 25, kDenominacion = 26, kPosicionInicio = 27;
inline constexpr int kDensidad = 28, kPerimetro = 29, kAreaPieza = 30, kAreaRectangulo = 31, kPesoPieza = 32;
inline constexpr int kPesoRectangulo = 33, kDesperdicio = 34, kParteDesperdicio = 35;
// Of the elliptical piece: the same in every language but for two.
inline constexpr int kH = 51, kEjeMayor = 52, kEjeMenor = 53, kAX = 54, kAY = 55, kAlfa = 56, kLi = 59, kAi = 60;
inline constexpr int kDivisionesElip = 57, kPosicionInicioElip = 58, kFaltanDatosElip = 61;

// The buttons of the solid's window: the ten fixed views, the ways of looking, what leaves it.
inline constexpr int kDesdeArriba = 84, kDesdeAbajo = 85, kDesdeIzquierda = 86, kDesdeDerecha = 87;
inline constexpr int kDesdeDelante = 88, kDesdeDetras = 89, kIsoDelante = 90, kIsoDerecha = 91, kIsoDetras = 92;
inline constexpr int kIsoIzquierda = 93, kMueve = 94, kOrbita = 95, kZoom = 96, kZoomTodo = 97, kZoomVentana = 98;
inline constexpr int kDesplegado = 99, kGuarda = 100, kCierraVisor = 101;

// Prompts, and what hangs on the pointer.
inline constexpr int kColocarPieza = 63, kColocarSegunda = 64, kColocarCajetin = 65;
inline constexpr int kEsquina = 103, kLado = 104, kCajetin = 106, kElige = 102, kReemplazar = 105;

inline constexpr int kNoGuardado = 80;       ///< the file could not be saved
inline constexpr int kPlantilla = 81;        ///< the template is missing or unusable
inline constexpr int kDemasiadas = 82;       ///< run ended early: no handle left
inline constexpr int kMedidaImposible = 83;  ///< run ended early: a coordinate is no number
inline constexpr int kIncompleto = 120;      ///< run ended early, whatever the reason
inline constexpr int kConfiguracion = 121;   ///< the configuration can't be used
inline constexpr int kValorMalo = 130;       ///< a key's value makes no sense; what is used instead
inline constexpr int kClaveMala = 131;       ///< a key that is nearly one of ours; what counts for that

// Why a file could not be saved.
inline constexpr int kLleno = 132;        ///< no room on the disk
inline constexpr int kSinDerechos = 133;  ///< no right to write it
inline constexpr int kNombreLargo = 134;
inline constexpr int kSoloLectura = 135;  ///< the disk is read-only
inline constexpr int kSinCarpeta = 136;   ///< there is no such folder
inline constexpr int kNoEsFichero = 137;  ///< what stands there is no file
inline constexpr int kFalloDisco = 138;   ///< the system's own words follow
inline constexpr int kVista = 139;        ///< the drawing has no extent
// What could not be kept of a file that was replaced.
inline constexpr int kRestos = 140, kDueno = 141, kGrupo = 142, kAcl = 143, kAtributos = 144, kModo = 145;
inline constexpr int kDibujoQueda = 146;  ///< the drawing was saved, though not all of its pictures
inline constexpr int kNoPintado = 147;    ///< a picture could not be painted
inline constexpr int kSinLetra = 148;     ///< no font of the machine has the letters of a picture

// The verdict.
inline constexpr int kCierto = 107, kFalso = 108, kLargo = 109, kVuelta = 110, kFalta = 111, kRepetida = 112;
inline constexpr int kCruce = 113, kVecinas = 114, kNumeros = 115, kDoblez = 116, kEntera = 117, kMitad = 118;
inline constexpr int kDesviacion = 119;

inline constexpr int kImposible = 150, kFigura = 151;
inline constexpr int kBocaBajoBase = 152, kCorteSobreVertice = 153, kLadoComido = 154, kRadioImposible = 155;
inline constexpr int kSeEncuentra = 156, kReglasUsuales = 157, kCuraExacta = 158;
inline constexpr int kNota = 159, kDelgada = 160, kOtroExtremo = 161;
inline constexpr int kExacto = 162, kHaciaArriba = 163, kHaciaAbajo = 164;

// Values and files of pieces.
inline constexpr int kUltimosValores = 290, kCeros = 291, kAbrePieza = 292, kGuardaPieza = 293, kEligePieza = 294;
inline constexpr int kSinPiezas = 295, kDemasiadoGrande = 296, kNoSeLee = 297, kValorNoSirve = 298;
inline constexpr int kPiezaDesconocida = 299, kAnade = 300, kReemplaza = 301, kYaHayPiezas = 302;
inline constexpr int kNombrePieza = 303, kNombreMalo = 304, kPiezaIlegible = 308, kSinFichero = 309;
// The end of the program with a pattern that isn't saved.
inline constexpr int kSinGuardar = 305, kDescarta = 306, kSeQueda = 307, kGuardaYSale = 310;

}  // namespace duktores::texto
