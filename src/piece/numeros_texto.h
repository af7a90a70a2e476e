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

// Files for the machine, lists, paper.
inline constexpr int kSinCorte = 170;     ///< why follows
inline constexpr int kCorteFalso = 171;   ///< the pattern isn't true
inline constexpr int kSinArea = 172;      ///< of a shape
inline constexpr int kNombreAjeno = 173;  ///< a name that other systems can't store
inline constexpr int kExporta = 174, kCortes = 175, kListaDobleces = 176, kPdf = 177, kImprime = 178;
inline constexpr int kEscrito = 179;         ///< names and folder follow
inline constexpr int kCortarIgual = 180;     ///< a question
inline constexpr int kReemplazarEsos = 181;  ///< likewise; names follow
inline constexpr int kCorteViejo = 182;      ///< names follow

// Placing.
inline constexpr int kDeCuantas = 200, kPonTodas = 201, kPonTodasAyuda = 202, kNombres = 203, kSolapan = 204;
inline constexpr int kPonJunta = 205, kDeshace = 206, kRehace = 207;  ///< of the page of the keys

// What keeps the fields of a dialog from being a piece: rules, in which %1 to %3 are fields and %0 is a number.
inline constexpr int kFaltan = 220, kNoEsNumero = 221, kNoCero = 222;
inline constexpr int kDobleHastaMayor = 223, kDobleDesdeMenor = 224, kEntreAngulos = 225, kDesde = 226;
inline constexpr int kSumaHasta = 227, kHastaMitad = 228, kHasta = 229, kMitadHasta = 230, kMultiploDe4 = 231;
inline constexpr int kBajoBase = 232;

// The solid as it is looked at.
inline constexpr int kDesdeEsquina = 233, kAlambre = 234, kSolidoODesarrollo = 235, kBoca = 236, kBase = 237;

// The settings: what the window says, its rows and what they mean, choices, limits.
inline constexpr int kNombreIdioma = 240;  ///< each language's own name
inline constexpr int kAjustes = 241, kPiezasYDibujos = 242, kMaquina = 243;
inline constexpr int kIdioma = 244, kUnidad = 245, kSuperficie = 246, kAlturaTextos = 247, kCotas = 248;
inline constexpr int kColorDoblez = 249, kDesarrolloExacto = 250, kCarpetaGuardado = 251;
inline constexpr int kQueUnidad = 252, kQueEspesor = 253, kQueSuperficie = 254, kQueDensidad = 255, kQueAltura = 256;
inline constexpr int kQueCotas = 257, kQueCajetin = 258, kQueColor = 259, kQueDivisiones = 260, kQueExacto = 261;
inline constexpr int kQueCarpeta = 262;
inline constexpr int kMilimetros = 263, kPulgadas = 264;
inline constexpr int kSuperficieInterior = 265, kSuperficieMedia = 266, kSuperficieExterior = 267;
inline constexpr int kNumeroDesde = 268, kNumeroEntre = 270, kEnteroEntre = 271, kMultiplo = 272;
inline constexpr int kCarpetaQueExiste = 273, kDeLaLista = 274;
inline constexpr int kSinConfiguracion = 275;  ///< no configuration file; a click helps
inline constexpr int kSeGuardan = 276;         ///< the file that keeps the settings
inline constexpr int kCapaCorte = 277, kCapaArriba = 278, kCapaAbajo = 279, kCapaMarcas = 280;
inline constexpr int kDoblecesCorte = 281, kNombreMarcado = 282, kTolerancia = 283, kDoblezMinimo = 284;
inline constexpr int kArcos = 285, kUnFichero = 286, kNinguno = 287, kLineasEnteras = 288, kTrazos = 289;

// Values and files of pieces.
inline constexpr int kUltimosValores = 290, kCeros = 291, kAbrePieza = 292, kGuardaPieza = 293, kEligePieza = 294;
inline constexpr int kSinPiezas = 295, kDemasiadoGrande = 296, kNoSeLee = 297, kValorNoSirve = 298;
inline constexpr int kPiezaDesconocida = 299, kAnade = 300, kReemplaza = 301, kYaHayPiezas = 302;
inline constexpr int kNombrePieza = 303, kNombreMalo = 304, kPiezaIlegible = 308, kSinFichero = 309;
// The end of the program with a pattern that isn't saved.
inline constexpr int kSinGuardar = 305, kDescarta = 306, kSeQueda = 307, kGuardaYSale = 310;

// What is wrong with a text that was to go into a field.
inline constexpr int kSoloNumero = 320, kSoloCifras = 321, kDecimalesDeMas = 322, kSignoDelante = 323;

// The page of the keys: its title, its headings, and what no button's text says.
inline constexpr int kAyuda = 324, kCatalogo = 325, kMedidas = 326, kVisor = 327, kTodas = 328;
inline constexpr int kEligeFila = 329, kCampoSiguiente = 330, kAbreLista = 331, kVistasFijas = 332, kPulsaBoton = 333;

inline constexpr int kGuardadoEn = 334;  ///< the path of a saved drawing follows

inline constexpr int kManual = 370, kSinManual = 371, kIndice = 372, kAtras = 373;  // the manual's window

// Sheets: the window, its fields and buttons, figures (in which %1 and so on are numbers), what lies on none and why,
// why one isn't written.
inline constexpr int kChapas = 380, kAnchoChapa = 381, kAltoChapa = 382, kCantidad = 383, kSinLimite = 384;
inline constexpr int kSeparacion = 385, kMargen = 386, kGiro = 387, kGiroCada = 388, kSegundos = 389;
inline constexpr int kDistribuye = 390, kPara = 391;
inline constexpr int kUnaChapa = 392, kResto = 393, kResumenChapas = 394, kDesarrollando = 395;
inline constexpr int kSinColocar = 396, kSinAreaOLarga = 397, kMayorQueChapas = 398, kSinChapaDeEspesor = 399;
inline constexpr int kNoQuedanChapas = 400, kParadoAntes = 401;
inline constexpr int kFueraDelMargen = 402, kDemasiadoCerca = 403, kUnaEnOtra = 404, kGiroProhibido = 405;
inline constexpr int kNoCuadran = 406, kNoSeEscribe = 407, kUnaChapaAlMenos = 408, kSinGiro = 409;

// What more settings mean; the rule for a layer's name.
inline constexpr int kQueIdioma = 420, kQueCapaCorte = 421, kQueCapaArriba = 422, kQueCapaAbajo = 423;
inline constexpr int kQueCapaMarcas = 424, kQueDobleces = 425, kQueNombre = 426, kQueTolerancia = 427;
inline constexpr int kQueDoblezMinimo = 428, kQueArcos = 429, kQueUnFichero = 430, kReglaCapa = 431;

}  // namespace duktores::texto
