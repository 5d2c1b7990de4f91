/* The device-independent drawing layer: all of it. vornplan_tipos.h tells what an output and a device are. */
#ifndef VN_VORNPLAN_H
#define VN_VORNPLAN_H

#include "vornplan_atributos.h"
#include "vornplan_caja_texto.h"
#include "vornplan_capas.h"
#include "vornplan_cuerpos.h"
#include "vornplan_curvas.h"
#include "vornplan_imagenes.h"
#include "vornplan_instala.h"
#include "vornplan_lineas.h"
#include "vornplan_rellenos.h"
#include "vornplan_salida.h"
#include "vornplan_sistemas.h"
#include "vornplan_texto.h"
#include "vornplan_texto_lineas.h"
#include "vornplan_texto_longitud.h"
#include "vornplan_texto_variable.h"

#endif
