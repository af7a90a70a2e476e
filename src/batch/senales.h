#pragma once
// The signals by which someone or something ends a program: interrupt, terminate, hang-up. They are noted, and whoever
// works ends when it has finished what must be whole.

namespace duktores {

/// Notes the signals from now on. One that is ignored, as under nohup, stays so.
void AtiendeSenales();
/// None of these signals comes to the calling thread, so that it comes to the one that may wait for input.
void SinSenales();
/// The signal that has come; 0 if none.
int SenalRecibida();
/// How many have come.
int SenalesRecibidas();

/// Thrown by ExigeSeguir when a signal has come.
struct Interrumpido {};
void ExigeSeguir();

}  // namespace duktores
